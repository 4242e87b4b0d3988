#include "desktop/EndOfSession.h"

#include <fcntl.h>
#include <unistd.h>

#include <QGuiApplication>
#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

namespace kestrel::desktop {

namespace {

// What a signal handler writes into the one end, the event loop reads from the other. It lives as
// long as the process: a signal may come at any time.
std::array<int, 2> signalPipe{-1, -1};

int ReadingEnd() {
    if (signalPipe[0] < 0 && pipe2(signalPipe.data(), O_CLOEXEC | O_NONBLOCK) < 0) return -1;
    return signalPipe[0];
}

void TellOfSignal(int /*signal*/) {
    const int before = errno;
    const char any = 0;
    // A pipe that is full has told already.
    static_cast<void>(!write(signalPipe[1], &any, 1));
    errno = before;
}

// A signal that whoever started the program wants ignored, as nohup does, stays so.
void Catch(int signal) {
    struct sigaction now {};
    if (sigaction(signal, nullptr, &now) < 0 || now.sa_handler == SIG_IGN) return;
    now = {};
    now.sa_handler = TellOfSignal;
    now.sa_flags = SA_RESTART;
    sigaction(signal, &now, nullptr);
}

}  // namespace

EndOfSession::EndOfSession(MayEnd mayEnd)
    : mayEnd_(std::move(mayEnd)), signals_(ReadingEnd(), QSocketNotifier::Read) {
    connect(&signals_, &QSocketNotifier::activated, qApp, [] { QCoreApplication::exit(0); });
    connect(qApp, &QGuiApplication::commitDataRequest, this, &EndOfSession::CommitData,
            Qt::DirectConnection);
    qApp->installEventFilter(this);
    if (signalPipe[1] < 0) return;
    for (const int signal : {SIGHUP, SIGINT, SIGTERM})
        Catch(signal);
}

void EndOfSession::CommitData(QSessionManager& manager) {
    const bool mayAsk = manager.allowsInteraction();
    if (!mayEnd_(mayAsk)) {
        manager.cancel();
    } else if (mayAsk) {
        manager.release();
    }
}

// The session manager ends the program by the event that closes all windows, which would ask again.
bool EndOfSession::eventFilter(QObject* watched, QEvent* event) {
    if (watched != qApp || event->type() != QEvent::Quit || !event->spontaneous())
        return QObject::eventFilter(watched, event);
    QCoreApplication::exit(0);
    return true;
}

}  // namespace kestrel::desktop
