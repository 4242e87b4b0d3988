#include "platform/qt/QtHelpViewer.h"

#include <QFileInfo>
#include <QShortcut>
#include <QUrl>

namespace kestrel::qt {

namespace {

constexpr QSize kWindowSize(700, 560);

void CloseOn(QTextBrowser* window, const QKeySequence& key) {
    QObject::connect(new QShortcut(key, window), &QShortcut::activated, window, &QWidget::close);
}

}  // namespace

bool QtHelpViewer::ShowHelp(const std::string& file, const std::string& title) {
    const QFileInfo page(QString::fromStdString(file));
    if (!page.isFile() || !page.isReadable()) return false;
    if (window_ == nullptr) window_ = NewWindow();
    window_->setWindowTitle(QString::fromStdString(title));
    window_->setSource(QUrl::fromLocalFile(page.absoluteFilePath()));
    window_->showNormal();
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
    window->resize(kWindowSize);
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
