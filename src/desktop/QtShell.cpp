#include "desktop/QtShell.h"

#include <unistd.h>

#include <QDesktopServices>
#include <QProcess>
#include <QUrl>
#include <cerrno>

#include "platform/system/PathText.h"

namespace kestrel::desktop {

namespace {

constexpr int kOpenerPatience = 700;  // milliseconds

tl::unexpected<Error> NotStarted(const QString& reason) {
    return Fail(ECHILD, reason.toStdString());
}

}  // namespace

Result<void> QtShell::RunProgram(const std::string& program,
                                 const std::vector<std::string>& arguments) {
    const bool isPath = program.find_first_of("\\/") != std::string::npos;
    QProcess process;
    process.setProgram(QString::fromStdString(isPath ? system::ResolvePath(program) : program));
    QStringList words;
    for (const std::string& argument : arguments)
        words << QString::fromStdString(argument);
    process.setArguments(words);
    process.setStandardInputFile(QProcess::nullDevice());
    if (!process.startDetached()) return NotStarted(process.errorString());
    return {};
}

// QDesktopServices alone cannot tell that the opener gave up, as it does where no browser is there.
Result<void> QtShell::Open(const std::string& address) {
    const QString url = QString::fromStdString(address);
    // Belongs to nobody: its destructor would end the opener, which may have become the browser.
    auto* opener = new QProcess;
    QObject::connect(opener, &QProcess::finished, opener, &QObject::deleteLater);
    opener->setStandardInputFile(QProcess::nullDevice());
    opener->setProcessChannelMode(QProcess::ForwardedChannels);
    opener->setChildProcessModifier([] { setsid(); });
    opener->start(QStringLiteral("xdg-open"), {url});
    if (!opener->waitForStarted()) {
        const QString reason = opener->errorString();
        delete opener;
        if (!QDesktopServices::openUrl(QUrl(url))) return NotStarted(reason);
        return {};
    }
    if (!opener->waitForFinished(kOpenerPatience)) return {};
    if (opener->exitStatus() == QProcess::NormalExit && opener->exitCode() == 0) return {};
    return NotStarted(QStringLiteral("The opener gave up"));
}

}  // namespace kestrel::desktop
