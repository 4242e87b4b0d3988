#include "desktop/RecentlyUsed.h"

#include <QDateTime>
#include <cerrno>
#include <filesystem>
#include <iterator>
#include <span>

#include "desktop/BookmarkList.h"

namespace kestrel::desktop {

namespace {

// Larger ones are left alone, to keep opening quick.
constexpr std::size_t kMaxListBytes = 8 << 20;
constexpr int kTries = 5;

QString MimeTypeOf(const std::string& path) {
    const bool isCursor =
        QString::fromStdString(path).endsWith(QLatin1String(".cur"), Qt::CaseInsensitive);
    return isCursor ? QStringLiteral("image/x-win-bitmap")
                    : QStringLiteral("image/vnd.microsoft.icon");
}

}  // namespace

void RecentlyUsed::Add(const std::string& path) {
    if (list_.empty()) return;
    const Bookmark bookmark{FileAddress(path), MimeTypeOf(path),
                            QDateTime::currentDateTimeUtc().toString(Qt::ISODate)};
    for (int tries = 0; tries < kTries; ++tries) {
        const auto old = files_.LoadFile(list_, kMaxListBytes);
        if (!old && old.error().number != ENOENT) return;
        // An empty file is damaged, or about to be written.
        if (old && old->bytes.empty()) return;
        QByteArray text;
        if (old)
            text.append(reinterpret_cast<const char*>(old->bytes.data()), std::ssize(old->bytes));
        const auto changed = WithBookmark(text, bookmark);
        if (!changed) return;
        const auto now = files_.Identify(list_);
        if (now.has_value() != old.has_value() || (now && *now != old->identity)) continue;
        const std::span bytes(reinterpret_cast<const std::uint8_t*>(changed->data()),
                              static_cast<std::size_t>(changed->size()));
        if (files_.ReplaceFile(list_, bytes) && !old) {
            // Which documents one uses is nobody else's business.
            using std::filesystem::perms;
            std::error_code kept;
            std::filesystem::permissions(list_, perms::owner_read | perms::owner_write, kept);
        }
        return;
    }
}

}  // namespace kestrel::desktop
