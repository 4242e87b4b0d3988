#include "platform/qt/QtHelpViewer.h"

#include <QFileInfo>
#include <QScreen>
#include <QShortcut>
#include <QUrl>

namespace kestrel::qt {

namespace {

constexpr QSize kWindowSize(700, 560);
constexpr QSize kFrame(16, 40);

void CloseOn(QTextBrowser* window, const QKeySequence& key) {
    QObject::connect(new QShortcut(key, window), &QShortcut::activated, window, &QWidget::close);
}

}  // namespace

bool QtHelpViewer::ShowHelp(const std::string& file, const std::string& title) {
    const QFileInfo page(QString::fromStdString(file));
    if (!page.isFile() || !page.isReadable()) return false;
    if (window_ == nullptr) window_ = NewWindow();
    window_->setWindowTitle(QString::fromStdString(title));
    const QUrl url = QUrl::fromLocalFile(page.absoluteFilePath());
    if (window_->source().adjusted(QUrl::RemoveFragment) != url) {
        window_->setSource(url);
        // The way back would lead into the other language.
        window_->clearHistory();
    }
    window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
    window_->show();
    window_->raise();
    window_->activateWindow();
    return true;
}

void QtHelpViewer::Close() {
    delete window_.data();
}

QTextBrowser* QtHelpViewer::NewWindow() {
    auto* window = new QTextBrowser;
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->resize(kWindowSize.boundedTo(window->screen()->availableSize() - kFrame));
    // The browser follows links within the help; the web is for the desktop's own.
    window->setOpenLinks(false);
    QObject::connect(window, &QTextBrowser::anchorClicked, window,
                     [this, window](const QUrl& link) {
                         if (link.isLocalFile() || link.isRelative()) {
                             window->setSource(window->source().resolved(link));
                         } else {
                             // A page that cannot be opened leaves the reader where he is.
                             static_cast<void>(shell_.Open(link.toString().toStdString()));
                         }
                     });
    CloseOn(window, QKeySequence(Qt::Key_Escape));
    CloseOn(window, QKeySequence(Qt::ALT | Qt::Key_F4));
    return window;
}

}  // namespace kestrel::qt
