// A window that drags files out: drag_source <absolute path>... Press in it and move to start the
// drag. Prints "accepted" when a window under the pointer takes the files, and ends when they are
// handed over.

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <QWidget>
#include <cstdio>

namespace {

class DragSource : public QWidget {
  public:
    explicit DragSource(QList<QUrl> urls) : urls_(std::move(urls)) {
        setWindowTitle(QStringLiteral("drag source"));
        setFixedSize(100, 100);
        // Beside a window that is centred on the test's display.
        move(10, 10);
    }

  protected:
    void mouseMoveEvent(QMouseEvent* event) override {
        if ((event->buttons() & Qt::LeftButton) == 0) return;
        auto* files = new QMimeData;
        files->setUrls(urls_);
        auto* drag = new QDrag(this);
        drag->setMimeData(files);
        connect(drag, &QDrag::actionChanged, this, [](Qt::DropAction action) {
            if (action != Qt::IgnoreAction) std::puts("accepted");
            std::fflush(stdout);
        });
        // Until the target has fetched the files the drag lives on, beyond the button's release.
        connect(drag, &QObject::destroyed, qApp, &QApplication::quit);
        drag->exec(Qt::CopyAction);
    }

  private:
    QList<QUrl> urls_;
};

}  // namespace

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    QList<QUrl> urls;
    for (const QString& file : QApplication::arguments().mid(1))
        urls.append(QUrl::fromLocalFile(file));
    DragSource source(urls);
    source.show();
    return QApplication::exec();
}
