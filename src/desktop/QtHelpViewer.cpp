#include "desktop/QtHelpViewer.h"

#include <QFileInfo>
#include <QScreen>
#include <QUrl>

#include "desktop/CloseKey.h"

namespace kestrel::desktop {

namespace {

constexpr QSize kWindowSize(700, 560);
// What a window manager puts around a window, at the most.
constexpr QSize kWindowFrame(16, 40);

bool CanRead(const std::string& file) {
    const QFileInfo page(QString::fromStdString(file));
    return page.isFile() && page.isReadable();
}

}  // namespace

bool QtHelpViewer::ShowHelp(const std::string& file, const std::string& title) {
    if (!CanRead(file)) return false;
    // A window that was just closed is only about to go.
    if (window_ != nullptr && window_->isHidden()) Close();
    if (window_ == nullptr) window_ = NewWindow();
    window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
    window_->show();
    ChangePage(file, title);
    window_->raise();
    window_->activateWindow();
    return true;
}

void QtHelpViewer::ChangePage(const std::string& file, const std::string& title) {
    if (window_ == nullptr || !CanRead(file)) return;
    window_->setWindowTitle(QString::fromStdString(title));
    window_->ShowTexts();
    window_->setAccessibleName(window_->windowTitle());
    const QUrl url =
        QUrl::fromLocalFile(QFileInfo(QString::fromStdString(file)).absoluteFilePath());
    if (window_->source().adjusted(QUrl::RemoveFragment) == url) return;
    window_->setSource(url);
    // The way back would lead into the other language.
    window_->clearHistory();
}

void QtHelpViewer::Close() {
    const HelpWindow* const closing = window_;
    window_.clear();
    delete closing;
}

HelpWindow* QtHelpViewer::NewWindow() {
    auto* window = new HelpWindow;
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->resize(kWindowSize.boundedTo(window->screen()->availableSize() - kWindowFrame));
    // The browser follows links within the help; the web is for the desktop's own.
    window->setOpenLinks(false);
    QObject::connect(window, &QTextBrowser::anchorClicked, window,
                     [this](const QUrl& link) { Follow(link); });
    AddCloseKey(*window, Qt::Key_Escape);
    AddCloseKey(*window, Qt::ALT | Qt::Key_F4);
    return window;
}

void QtHelpViewer::Follow(const QUrl& link) {
    if (link.isLocalFile() || link.isRelative()) {
        window_->setSource(window_->source().resolved(link));
    } else {
        // A page that cannot be opened leaves the reader where he is.
        static_cast<void>(shell_.Open(link.toString().toStdString()));
    }
}

}  // namespace kestrel::desktop
