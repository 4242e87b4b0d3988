#include <QLineEdit>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "tests/windows/WindowTest.h"
#include "windows/FrmColAdj.h"
#include "windows/FrmShades.h"
#include "windows/frmGamma.h"

namespace kestrel::test {
namespace {

constexpr int kLines = 33;

// Holds at every scale of the desktop, which is the process's own: QT_SCALE_FACTOR.
class ScalesTest : public WindowTest, public testing::WithParamInterface<Qt::Orientation> {
  protected:
    double Scale() const { return window_.devicePixelRatioF(); }
    // As many pixels of the screen as lie wholly within the grid.
    int Room() {
        const QPoint corner = Grid()->mapTo(&window_, QPoint());
        const int at = GetParam() == Qt::Horizontal ? corner.x() : corner.y();
        return qFloor((at + 321) * Scale()) - qCeil(at * Scale());
    }
    // A pixel of the screen so far along the grid, through the middle of its first cells.
    QPoint Pixel(int along) {
        const QPointF corner = Grid()->mapTo(&window_, QPointF()) * Scale();
        const QPoint first(qCeil(corner.x()), qCeil(corner.y()));
        const int across = qFloor(5 * Scale());
        return first +
               (GetParam() == Qt::Horizontal ? QPoint(along, across) : QPoint(across, along));
    }
    // The cell that a press on the middle of a pixel of the screen means.
    int PressedCell(QPoint pixel) {
        const QPointF inWindow = (QPointF(pixel) + QPointF(0.5, 0.5)) / Scale();
        QPoint pressed;
        window_.GridWidget().onMouseDown = [&](Qt::MouseButton, QPoint at) { pressed = at; };
        QMouseEvent press(QEvent::MouseButtonPress, Grid()->mapFrom(&window_, inWindow.toPoint()),
                          inWindow, window_.mapToGlobal(inWindow), Qt::LeftButton, Qt::LeftButton,
                          {});
        QApplication::sendEvent(Grid(), &press);
        return (GetParam() == Qt::Horizontal ? pressed.x() : pressed.y()) / 10;
    }
};

TEST_P(ScalesTest, GridLinesAreEvenAndEveryPixelIsPartOfTheCellItShows) {
    const QImage shown = window_.grab().toImage();
    std::vector<int> lines;
    std::vector<int> cells;
    bool wasLine = false;
    for (int along = 0; along < Room(); ++along) {
        const bool isLine = shown.pixelColor(Pixel(along)) == Qt::black;
        auto& parts = isLine ? lines : cells;
        if (along == 0 || isLine != wasLine) parts.push_back(0);
        ++parts.back();
        wasLine = isLine;
        EXPECT_EQ(PressedCell(Pixel(along)) + 1, std::ssize(lines)) << along;
    }
    EXPECT_EQ(lines, std::vector<int>(kLines, static_cast<int>(std::lround(Scale()))));
    const auto [least, most] = std::ranges::minmax(cells);
    EXPECT_EQ(std::ssize(cells), kLines - 1);
    EXPECT_LE(most - least, 1);
}

// The desktop's text from small to large.
class LargeTextTest : public WindowTest {
  protected:
    static constexpr int kSizes[] = {10, 12, 16, 20, 27, 40};

    static void SetText(int pixels) {
        QFont font = QApplication::font();
        font.setPixelSize(pixels);
        QApplication::setFont(font);
        QApplication::processEvents();
    }
    void TearDown() override {
        QApplication::setFont(before_);
        WindowTest::TearDown();
    }

  private:
    QFont before_ = QApplication::font();
};

TEST_F(LargeTextTest, TheMainWindowCutsNoText) {
    for (const char* language : {"mnuLanguageOpts0", "mnuLanguageOpts1"}) {
        Item(language)->trigger();
        for (const int pixels : kSizes) {
            SetText(pixels);
            for (const char* name : {"Label1", "ChkPal"}) {
                EXPECT_LE(Control(name)->sizeHint().width(), Control(name)->width())
                    << name << language << pixels;
            }
            const auto* bar = window_.findChild<QMenuBar*>();
            EXPECT_LE(bar->sizeHint().width(), window_.width()) << language << pixels;
            EXPECT_LE(bar->geometry().bottom(), window_.Toolbar1().y()) << language << pixels;
        }
        EXPECT_EQ(window_.EditingPopup()->font().pixelSize(), 40) << "menus have room";
    }
}

TEST_F(LargeTextTest, TheScreenHoldsEveryDialog) {
    imaging::ColorAdjustment colors{gdi::IconPlanes()};
    for (const int pixels : kSizes) {
        SetText(pixels);
        windows::frmGamma gamma(&window_);
        windows::FrmShades shades(&window_);
        windows::FrmColAdj adjustment(&window_, colors, gdi::Surface(32, 32));
        for (const QDialog* dialog : std::initializer_list<QDialog*>{&gamma, &shades, &adjustment})
            EXPECT_TRUE(window_.screen()->geometry().contains(dialog->geometry()))
                << dialog->windowTitle().toStdString() << pixels;
        EXPECT_GE(gamma.findChild<QLineEdit*>()->width(),
                  gamma.fontMetrics().horizontalAdvance(QStringLiteral("0000")));
    }
}

INSTANTIATE_TEST_SUITE_P(BothWays, ScalesTest, testing::Values(Qt::Horizontal, Qt::Vertical));

}  // namespace
}  // namespace kestrel::test
