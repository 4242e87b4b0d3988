#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <string>

namespace kestrel::desktop {

// A document that this program used.
struct Bookmark {
    // Address of the file, every byte of its path that may not stand there as %XX.
    QString href;
    QString mimeType;
    // ISO 8601, in UTC.
    QString time;
};

// The address of a file, spelled as GLib spells it: two spellings would be two documents.
QString FileAddress(const std::string& path);

// An XBEL list with the bookmark in it: a new one at the end, or the one of its address brought up
// to date. All else stays, what other programs noted of the same document too. Empty text is an
// empty list. Nothing when the text is no such list: it is not ours to mend.
std::optional<QByteArray> WithBookmark(const QByteArray& list, const Bookmark& bookmark);

}  // namespace kestrel::desktop
