#include <QScreen>
#include <algorithm>
#include <cmath>

#include "tests/windows/WindowTest.h"
#include "windows/FrmColAdj.h"
#include "windows/FrmShades.h"

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

// The size of the desktop's text in pixels.
class TextSizeTest : public WindowTest, public testing::WithParamInterface<int> {
  protected:
    TextSizeTest() {
        QFont font = before_;
        font.setPixelSize(GetParam());
        QApplication::setFont(font);
        QApplication::processEvents();
    }
    ~TextSizeTest() override { QApplication::setFont(before_); }

  private:
    QFont before_ = QApplication::font();
};

TEST_P(TextSizeTest, CutsNoTextAndNoDialog) {
    imaging::ColorAdjustment colors{gdi::IconPlanes()};
    for (const char* language : {"mnuLanguageOpts0", "mnuLanguageOpts1"}) {
        Item(language)->trigger();
        for (const char* name : {"Label1", "ChkPal"})
            EXPECT_LE(Control(name)->sizeHint().width(), Control(name)->width()) << name;
        const auto* bar = window_.findChild<QMenuBar*>();
        EXPECT_LE(bar->sizeHint().width(), window_.width());
        EXPECT_LE(bar->geometry().bottom(), window_.Toolbar1().y());
        EXPECT_EQ(window_.EditingPopup()->font().pixelSize(), GetParam()) << "menus have room";
        const windows::FrmShades shades(&window_);
        const windows::FrmColAdj adjustment(&window_, colors, gdi::Surface(32, 32));
        for (const QDialog* dialog : std::initializer_list<const QDialog*>{&shades, &adjustment})
            EXPECT_TRUE(window_.screen()->geometry().contains(dialog->geometry()));
    }
}

INSTANTIATE_TEST_SUITE_P(SmallToLarge, TextSizeTest, testing::Values(10, 12, 20, 27, 40));
INSTANTIATE_TEST_SUITE_P(BothWays, ScalesTest, testing::Values(Qt::Horizontal, Qt::Vertical));

}  // namespace
}  // namespace kestrel::test
