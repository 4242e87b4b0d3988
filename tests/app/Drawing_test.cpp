#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>
#include <QtTest/QTest>

#include "app/FrmIcoEd.h"
#include "editing/ToolTable.h"
#include "i18n/Language.h"
#include "platform/qt/Pictures.h"
#include "tests/support/EditorTest.h"
#include "tests/support/ListedTexts.h"
#include "tests/support/Services.h"

namespace kestrel::app {
namespace {

using editing::StatusPanel;
using editing::ToolId;

class DrawingTest : public testing::Test {
  protected:
    DrawingTest() {
        window_.Form_Load("");
        window_.show();
        QApplication::setActiveWindow(&window_);
        QApplication::processEvents();
    }
    void TearDown() override { i18n::SetUiLanguage(i18n::kEnglish); }

    editing::Editor& Editor() { return window_.OpenEditor(); }
    document::IconDocument& Icon() { return Editor().Document(); }
    QWidget* Control(const char* name) { return window_.findChild<QWidget*>(name); }

    // Mouse events of the grid, which also get there from outside while a button is held.
    void Send(QEvent::Type type, QPoint at, Qt::MouseButton button = Qt::NoButton) {
        held_ = type == QEvent::MouseButtonPress     ? held_ | button
                : type == QEvent::MouseButtonRelease ? held_ & ~Qt::MouseButtons(button)
                                                     : held_;
        QMouseEvent event(type, at, window_.GridWidget().mapToGlobal(at), button, held_,
                          Qt::NoModifier);
        QApplication::sendEvent(&window_.GridWidget(), &event);
    }
    void Press(Qt::MouseButton button, QPoint at) { Send(QEvent::MouseButtonPress, at, button); }
    void Move(QPoint at) { Send(QEvent::MouseMove, at); }
    void Release(Qt::MouseButton button, QPoint at) {
        Send(QEvent::MouseButtonRelease, at, button);
    }
    void ClickTool(ToolId tool, Qt::MouseButton button = Qt::LeftButton) {
        const int slot = static_cast<int>(tool) - 1;
        QTest::mouseClick(&window_.PicTools(), button, {},
                          QPoint(slot % 4 * 23 + 11, slot / 4 * 22 + 11));
    }

    // The grid shows the planes and nothing else, and no gesture goes on.
    void ExpectAtRest(const std::string& what) {
        EXPECT_TRUE(test::ViewsAreFresh(Editor())) << what;
        const gdi::Surface& grid = Editor().Views().PicMain;
        EXPECT_EQ(window_.GridWidget().grab().toImage().convertToFormat(QImage::Format_RGB32),
                  qt::ToImage(grid, grid.Bounds()))
            << what;
        const document::IconDocument before = Icon();
        Move({205, 205});
        Release(Qt::LeftButton, {305, 305});
        EXPECT_TRUE(Icon().PicImage.SamePixels(before.PicImage)) << what;
        EXPECT_TRUE(Icon().PicMask.SamePixels(before.PicMask)) << what;
    }

    test::FakeServices given_;
    FrmIcoEd window_{given_.Given()};
    Qt::MouseButtons held_;
};

TEST_F(DrawingTest, NoGestureLeavesAnythingBehind) {
    using Gesture = std::function<void(Qt::MouseButton button, Qt::MouseButton other)>;
    const auto drag = [this](Qt::MouseButton button, std::initializer_list<QPoint> way) {
        Press(button, *way.begin());
        for (const QPoint& at : way)
            Move(at);
        Release(button, *(way.end() - 1));
    };
    const Gesture gestures[] = {
        [&](auto button, auto) {
            drag(button, {{155, 155}});
        },
        [&](auto button, auto) {
            drag(button, {{15, 25}, {95, 105}, {55, 65}});
        },
        [&](auto button, auto) {
            drag(button, {{155, 155}, {-40, 155}, {155, -40}, {400, 155}, {155, 400}, {65, 75}});
        },
        [&](auto button, auto) {
            drag(button, {{155, 155}, {-3000, 5000}});
        },
        [&](auto button, auto) {
            drag(button, {{0, 320}, {320, 0}});
        },
        [&](auto button, auto other) {
            Press(button, {25, 25});
            Move({85, 55});
            Press(other, {85, 55});
            Move({155, 95});
            Release(button, {155, 95});
            Move({175, 105});
            Release(other, {175, 105});
        },
        [&](auto button, auto) {
            Press(button, {25, 25});
            Move({85, 55});
            QTest::keyClick(&window_, Qt::Key_Z, Qt::ControlModifier);
            Move({185, 155});
            Release(button, {185, 155});
        },
        [&](auto button, auto) {
            Press(button, {25, 25});
            Move({85, 55});
            window_.Menus().SmartMenuXP1.onClick("mnuLanguageOpts0");
            Move({185, 155});
            Release(button, {185, 155});
            window_.Menus().SmartMenuXP1.onClick("mnuLanguageOpts1");
        },
    };
    for (const editing::ToolRow& tool : editing::ToolTable()) {
        for (const auto& [button, other] : {std::pair{Qt::LeftButton, Qt::RightButton},
                                            std::pair{Qt::RightButton, Qt::LeftButton}}) {
            for (std::size_t i = 0; i < std::size(gestures); ++i) {
                ClickTool(tool.id);
                gestures[i](button, other);
                ExpectAtRest(std::string(tool.toolTip.english) + ", gesture " + std::to_string(i));
            }
        }
    }
}

TEST_F(DrawingTest, ARubberBandFollowsThePointer) {
    ClickTool(ToolId::Rectangle);
    const gdi::Surface before = Editor().Views().PicMain;
    Press(Qt::LeftButton, {22, 28});
    Move({94, 61});
    const gdi::Surface& grid = Editor().Views().PicMain;
    int inverted = 0;
    for (int y = 0; y < 321; ++y) {
        for (int x = 0; x < 321; ++x) {
            const bool onBand = x >= 25 && x <= 95 && y >= 25 && y <= 65 &&
                                (x == 25 || x == 95 || y == 25 || y == 65);
            ASSERT_EQ(grid.GetPixel(x, y), before.GetPixel(x, y) ^ (onBand ? gdi::kWhite : 0));
            inverted += onBand ? 1 : 0;
        }
    }
    EXPECT_EQ(inverted, 2 * (71 + 39));
    EXPECT_EQ(window_.StatusText(StatusPanel::DragSize), "8 , 5");
    Release(Qt::LeftButton, {94, 61});
    EXPECT_FALSE(Icon().IsTransparent(9, 6));
}

// Notes which parts of a widget are painted.
class PaintWatch : public QObject {
  public:
    explicit PaintWatch(QWidget* widget) : widget_(widget) { widget->installEventFilter(this); }
    QRegion Painted(const std::function<void()>& action) {
        QApplication::processEvents();
        painted_ = {};
        action();
        QApplication::processEvents();
        return painted_;
    }

  protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (object == widget_ && event->type() == QEvent::Paint)
            painted_ += static_cast<QPaintEvent*>(event)->region();
        return false;
    }

  private:
    QWidget* widget_;
    QRegion painted_;
};

TEST_F(DrawingTest, WhatChangesIsPaintedAgain) {
    const auto click = [this](const char* name) {
        return [this, name] { QTest::mouseClick(Control(name), Qt::LeftButton); };
    };
    const auto tool = [this] { ClickTool(ToolId::Line); };
    PaintWatch window(&window_);
    PaintWatch tools(&window_.PicTools());
    PaintWatch well(Control("PicBackColor"));
    EXPECT_EQ(tools.Painted(tool).boundingRect(), QRect(0, 0, 92, 66));
    const QRegion indicators = window.Painted(click("ImgInterchangeColor"));
    EXPECT_TRUE(indicators.contains(QRect(347, 160, 11, 11)));
    EXPECT_TRUE(indicators.contains(QRect(365, 160, 11, 11)));
    EXPECT_FALSE(well.Painted(click("ImgInterchangeColor")).isEmpty());

    // The size of a drag is printed below the cell, and like a cell.
    const auto printed = [this](int y) { return window_.grab(QRect(371, y, 60, 16)).toImage(); };
    const QRegion hovered = window.Painted([this] { Move({45, 55}); });
    EXPECT_TRUE(hovered.contains(QRect(371, 111, 60, 16)));
    EXPECT_FALSE(hovered.intersects(QRect(371, 133, 60, 16)));
    const QImage cell = printed(111);
    Press(Qt::LeftButton, {25, 25});
    const QRegion readouts = window.Painted([this] { Move({55, 65}); });
    Release(Qt::LeftButton, {55, 65});
    EXPECT_EQ(window_.StatusText(StatusPanel::DragSize), "4 , 5");
    EXPECT_EQ(printed(133), cell);
    EXPECT_TRUE(readouts.contains(QRect(371, 111, 60, 16)));
    EXPECT_TRUE(readouts.contains(QRect(371, 133, 60, 16)));
}

TEST_F(DrawingTest, UndoAndRedoAreEnabledWhenTheyCanDoSomething) {
    const auto enabled = [this] {
        std::string state;
        for (const auto& [item, button] :
             {std::pair{"mnuEditOpts0", "Undo"}, std::pair{"mnuEditOpts1", "Redo"}}) {
            const bool item0 = window_.BarAction(item)->isEnabled();
            EXPECT_EQ(window_.Toolbar1().Button(button)->isEnabled(), item0);
            state += item0 ? "+" : "-";
        }
        return state;
    };
    EXPECT_EQ(enabled(), "--");
    QTest::mouseClick(&window_.GridWidget(), Qt::LeftButton, {}, QPoint(55, 55));
    EXPECT_EQ(enabled(), "+-");
    QTest::keyClick(&window_, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(Icon().IsTransparent(5, 5));
    EXPECT_EQ(enabled(), "-+");
    QTest::mouseClick(window_.Toolbar1().Button("Redo"), Qt::LeftButton);
    EXPECT_FALSE(Icon().IsTransparent(5, 5));
    EXPECT_EQ(enabled(), "+-");
    QTest::mouseClick(window_.Toolbar1().Button("Undo"), Qt::LeftButton);
    Press(Qt::RightButton, {55, 55});
    Release(Qt::RightButton, {55, 55});
    EXPECT_EQ(enabled(), "+-") << "a new stroke ends the other branch";
    Icon().Modified = false;
    QTest::keyClick(&window_, Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(enabled(), "--");
}

TEST_F(DrawingTest, ToolsAndWellsAreUsedByMouse) {
    ClickTool(ToolId::Line, Qt::RightButton);
    EXPECT_EQ(window_.GridWidget().cursor().shape(), Qt::CrossCursor);
    std::vector<QImage> pointers;
    for (const ToolId tool :
         {ToolId::Pencil, ToolId::ColorEraser, ToolId::ColorPicker, ToolId::FloodFill}) {
        ClickTool(tool);
        EXPECT_EQ(Editor().Tools().CurrentTool(), tool);
        const QCursor cursor = window_.GridWidget().cursor();
        const QImage picture = cursor.pixmap().toImage();
        EXPECT_EQ(picture.pixelColor(cursor.hotSpot()), QColor(Qt::black)) << "the tip draws";
        EXPECT_EQ(std::count(pointers.begin(), pointers.end(), picture), 0);
        pointers.push_back(picture);
    }
    QTest::mouseMove(&window_.PicTools(), QPoint(30, 30));
    EXPECT_EQ(window_.PicTools().toolTip(), "Line");
    EXPECT_EQ(window_.StatusText(StatusPanel::Hint), "Draws a straight line");

    const auto shown = [this](int x, int y) {
        return qt::ToColorRef(window_.grab().toImage().pixelColor(x, y));
    };
    given_.colors.choice = 0x102030;
    QTest::mouseClick(Control("PicForeColor"), Qt::LeftButton);
    EXPECT_EQ(given_.colors.asked, std::vector<gdi::COLORREF>{gdi::kBlack});
    const QRect fore = Control("PicForeColor")->geometry();
    const QRect back = Control("PicBackColor")->geometry();
    for (const QPoint& at : {QPoint(347, 160), QPoint(357, 170), fore.center()})
        EXPECT_EQ(shown(at.x(), at.y()), 0x102030U);
    QTest::mouseClick(Control("ImgInterchangeColor"), Qt::LeftButton);
    for (const QPoint& at : {QPoint(365, 160), QPoint(375, 170), back.center()})
        EXPECT_EQ(shown(at.x(), at.y()), 0x102030U);
    // A transparent well shows the marker.
    const gdi::COLORREF before = shown(back.center().x(), back.center().y());
    QTest::mouseClick(Control("ImgTransparent"), Qt::RightButton);
    EXPECT_TRUE(Editor().Wells().IsTransparent(editing::Button::Right));
    EXPECT_NE(shown(back.center().x(), back.center().y()), before);
    EXPECT_EQ(shown(365, 160), gdi::kWhite);
    // Let go beside the control: nothing.
    QTest::mousePress(Control("ImgDefaultColor"), Qt::LeftButton);
    QTest::mouseRelease(Control("ImgDefaultColor"), Qt::LeftButton, {}, QPoint(40, 5));
    EXPECT_TRUE(Editor().Wells().IsTransparent(editing::Button::Right));
    QTest::mouseClick(Control("ImgDefaultColor"), Qt::LeftButton);
    EXPECT_EQ(shown(347, 160), gdi::kBlack);

    for (const test::Row& row : test::ListedTexts("well")) {
        for (const auto& [code, column] :
             {std::pair{i18n::kChinese, test::Chinese}, {i18n::kEnglish, test::English}}) {
            i18n::SetUiLanguage(code);
            const bool isPreview = row[test::Key] == "PicIcon";
            QWidget* control =
                isPreview ? window_.childAt(355, 75) : Control(row[test::Key].c_str());
            QTest::mouseMove(control, QPoint(4, code == i18n::kChinese ? 4 : 5));
            EXPECT_EQ(window_.StatusText(StatusPanel::Hint), row[column]);
        }
    }
}

}  // namespace
}  // namespace kestrel::app
