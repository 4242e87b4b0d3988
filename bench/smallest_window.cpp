// The least that a Qt program of the editor's size does: what its start-up time is measured
// against.

#include <QApplication>
#include <QMenuBar>
#include <QWidget>

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("smallest window"));
    window.setFixedSize(565, 432);
    QMenuBar menus(&window);
    window.show();
    return QApplication::exec();
}
