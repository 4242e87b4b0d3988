#include "desktop/CopiedFiles.h"

#include <QSysInfo>
#include <QUrl>

namespace kestrel::desktop {

namespace {

bool IsOfThisComputer(const QUrl& url) {
    const QString host = url.host();
    return url.isLocalFile() && (host.isEmpty() || host == QLatin1String("localhost") ||
                                 host == QSysInfo::machineHostName().toLower());
}

bool IsPicture(const QString& path) {
    return path.endsWith(QLatin1String(".png"), Qt::CaseInsensitive) ||
           path.endsWith(QLatin1String(".ico"), Qt::CaseInsensitive);
}

}  // namespace

std::string CopiedPicture(const QByteArray& list) {
    for (const QByteArray& line : list.split('\n')) {
        const QUrl url = QUrl::fromEncoded(line.trimmed());
        if (IsOfThisComputer(url) && IsPicture(url.path()))
            return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1())
                .toStdString();
    }
    return {};
}

}  // namespace kestrel::desktop
