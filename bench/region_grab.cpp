// The least that a Qt program does to enlarge the screen around the pointer: 20 times a second it
// grabs a region of 200 x 150 pixels and draws it twice as large. What the magnifier's cost is
// measured against.

#include <QApplication>
#include <QCursor>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <chrono>

namespace {

using namespace std::chrono_literals;

class RegionView : public QWidget {
  public:
    RegionView() {
        setWindowTitle(QStringLiteral("region grab"));
        setFixedSize(kRegion * 2);
        timer_.callOnTimeout([this] { Grab(); });
        timer_.start(50ms);
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override { QPainter(this).drawPixmap(rect(), region_); }

  private:
    static constexpr QSize kRegion{200, 150};

    void Grab() {
        const QPoint from = QCursor::pos() - QPoint(kRegion.width(), kRegion.height()) / 2;
        region_ = screen()->grabWindow(0, from.x(), from.y(), kRegion.width(), kRegion.height());
        update();
    }

    QPixmap region_;
    QTimer timer_;
};

}  // namespace

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    RegionView view;
    view.show();
    return QApplication::exec();
}
