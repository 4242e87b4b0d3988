#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <QtTest/QTest>

#include "desktop/Pictures.h"
#include "i18n/Language.h"
#include "tests/support/Services.h"
#include "windows/FrmColAdj.h"
#include "windows/FrmDialogs.h"
#include "windows/FrmShades.h"
#include "windows/frmGamma.h"

namespace kestrel::windows {
namespace {

constexpr gdi::COLORREF kGround = 0xF0F0F0;

template <typename Control>
Control* Find(const QWidget& dialog, const char* name) {
    auto* control = dialog.findChild<Control*>(QString::fromUtf8(name));
    EXPECT_NE(control, nullptr) << name;
    return control;
}
QScrollBar* Bar(const QWidget& dialog, const char* name) {
    return Find<QScrollBar>(dialog, name);
}
std::string LabelOf(const QWidget& dialog, const char* name) {
    return Find<QLabel>(dialog, name)->text().toStdString();
}
void Show(QWidget& dialog) {
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    QApplication::processEvents();
}
// The colour at a pixel of a picture.
gdi::COLORREF Shown(const QWidget& dialog, const char* picture, int x, int y) {
    return desktop::ToColorRef(Find<QWidget>(dialog, picture)->grab().toImage().pixelColor(x, y));
}
void Type(QWidget* box, const char* keys) {
    for (; *keys != 0; ++keys)
        *keys == '\b' ? QTest::keyClick(box, Qt::Key_Backspace) : QTest::keyClick(box, *keys);
}
// Does this in the dialog that comes up next.
void Then(const std::function<void(QWidget& dialog)>& act) {
    QTimer::singleShot(0, qApp, [act] {
        QWidget* dialog = QApplication::activeModalWidget();
        QApplication::setActiveWindow(dialog);
        act(*dialog);
    });
}

class FrmColAdjTest : public testing::Test {
  protected:
    FrmColAdjTest() {
        icon_.mask.SetPixel(1, 0, gdi::kBlack);  // all others are transparent
        icon_.image.SetPixel(1, 0, gdi::Rgb(252, 100, 3));
        colors_ = imaging::ColorAdjustment(icon_);
        Show(dialog_);
    }
    gdi::COLORREF Pixel() { return Shown(dialog_, "PicShade", 1, 0); }

    gdi::IconPlanes icon_;
    imaging::ColorAdjustment colors_{icon_};
    FrmColAdj dialog_{nullptr, colors_, gdi::Surface(32, 32, kGround)};
    QScrollBar* red_ = Bar(dialog_, "VsbRed");
};

TEST_F(FrmColAdjTest, ADragIsOneStepAndResetTakesAllStepsBack) {
    QScrollBar* green = Bar(dialog_, "VsbGreen");
    const QPoint thumb = green->rect().center();
    QTest::mousePress(green, Qt::LeftButton, {}, thumb);
    QTest::mouseMove(green, thumb - QPoint(0, 40));
    EXPECT_GT(std::stoi(LabelOf(dialog_, "LblGreen")), 50);
    EXPECT_EQ(Pixel(), kGround);
    QTest::mouseRelease(green, Qt::LeftButton, {}, thumb - QPoint(0, 40));
    EXPECT_EQ(Pixel(), gdi::Rgb(252, 105, 3));
    red_->setValue(-10);
    Bar(dialog_, "VsbBrightness")->setValue(-255);
    EXPECT_EQ(Pixel(), gdi::Rgb(242, 100, 3)) << "blue would have gone too far";
    Find<QPushButton>(dialog_, "CmdReset")->click();
    EXPECT_EQ(LabelOf(dialog_, "LblRed") + LabelOf(dialog_, "LblBrightness"), "00");
    Bar(dialog_, "VsbBlue")->setValue(40);
    EXPECT_EQ(Pixel(), gdi::Rgb(252, 100, 8));
    EXPECT_EQ(Shown(dialog_, "PicShade", 0, 0), kGround);
}

TEST_F(FrmColAdjTest, EveryControlRaisesTowardsTheTop) {
    QTest::keyClick(red_, Qt::Key_PageUp);
    QTest::mouseClick(red_, Qt::LeftButton, {}, {5, 24});  // above the thumb
    EXPECT_EQ(red_->value(), 10);
    QWheelEvent up({5, 5}, red_->mapToGlobal(QPointF(5, 5)), {}, {0, 120}, {}, {},
                   Qt::NoScrollPhase, false);
    QApplication::sendEvent(red_, &up);
    EXPECT_EQ(red_->value(), 15);
}

TEST(FrmGammaTest, TakesDigitsAlone) {
    frmGamma dialog(nullptr);
    Show(dialog);
    auto* box = Find<QLineEdit>(dialog, "txtGamma");
    Type(box, "-1a.2\b +:/035");
    EXPECT_EQ(box->text(), "1203");
    QApplication::clipboard()->setText("7");
    QTest::sendKeyEvent(QTest::Click, box, Qt::Key_V, "\x16", Qt::ControlModifier);
    box->paste();
    EXPECT_EQ(box->text(), "1203");
}

TEST(FrmShadesTest, BarFollowsTheTextAndTheTextTheBar) {
    FrmShades dialog(nullptr);
    Show(dialog);
    struct {
        const char *typed, *text, *selected;
        int bar;
    } const cases[] = {
        {"255", "255", "", 255}, {"2550", "25", "25", 25}, {"007", "007", "", 7},
        {"-1x2", "12", "", 12},  {"3007", "7", "", 7},     {"1\b", "", "", 0},
    };
    auto* box = Find<QLineEdit>(dialog, "TxtColor1");
    const QScrollBar* bar = Bar(dialog, "Hsb1");
    for (const auto& c : cases) {
        box->setFocus();
        box->selectAll();
        Type(box, c.typed);
        EXPECT_EQ(box->text(), c.text) << c.typed;
        EXPECT_EQ(box->selectedText(), c.selected) << c.typed;
        EXPECT_EQ(bar->value(), c.bar) << c.typed;
        QTest::keyClick(box, Qt::Key_Tab);
        EXPECT_EQ(box->text(), QString::number(c.bar)) << c.typed;
    }
    box->setText("99999999999");
    EXPECT_EQ(bar->value(), 99);
}

TEST(FrmShadesTest, ShowsTheGradientOfItsBars) {
    const FrmShades dialog(nullptr);
    for (int steps = 0; steps < 3; ++steps)
        QTest::keyClick(Bar(dialog, "VsbDegrees"), Qt::Key_Up);
    EXPECT_EQ(LabelOf(dialog, "LblDegrees"), "135");
    for (const auto& [bar, value] : {std::pair{"Hsb0", 64}, {"Hsb3", 0}, {"Hsb5", 128}})
        Bar(dialog, bar)->setValue(value);
    // 62 of 64 steps from the upper right: red 64 - 62, green 255 * 62 / 64, blue 2 * 62.
    EXPECT_EQ(Shown(dialog, "PicSml", 0, 31), gdi::Rgb(2, 247, 124));
}

// The dialogs as the commands ask for them.
class ImagingDialogsTest : public testing::Test {
  protected:
    void TearDown() override { i18n::SetUiLanguage(i18n::kEnglish); }
    bool Adjust() { return dialogs_.AdjustColors(colors_, gdi::Surface(32, 32)); }

    QWidget owner_;
    test::PaintedScreen screen_;
    FrmDialogs dialogs_{owner_, screen_};
    imaging::ColorAdjustment colors_{gdi::IconPlanes()};
};

TEST_F(ImagingDialogsTest, GivesTheAnswerOrNone) {
    const auto type = [](const char* box, const char* keys) {
        Then([=](auto& dialog) { Type(Find<QWidget>(dialog, box), keys); });
    };
    type("cmdOK", " ");
    EXPECT_TRUE(Adjust());
    type("cmdCancel", " ");
    EXPECT_FALSE(Adjust());
    type("txtGamma", "220\r");
    EXPECT_EQ(dialogs_.AskGamma(), 220);
    type("cmdOK", " ");
    EXPECT_EQ(dialogs_.AskGamma(), 0);
    type("txtGamma", "220\x1b");
    EXPECT_EQ(dialogs_.AskGamma(), std::nullopt);
    type("TxtColor2", "4\r");
    EXPECT_EQ(dialogs_.AskGradient().value().GetPixel(0, 31), gdi::Rgb(0, 0, 4));
    type("Opt0", "\r");
    EXPECT_EQ(dialogs_.AskFit({48, 48}), imaging::PasteFit::Shrink);
    type("Opt1", " \r");
    EXPECT_EQ(dialogs_.AskFit({48, 48}), imaging::PasteFit::KeepAspect);
}

TEST_F(ImagingDialogsTest, SpeaksBothLanguages) {
    QStringList texts;
    const auto read = [&](QWidget& dialog) {
        texts << dialog.windowTitle();
        for (const auto* label : dialog.findChildren<QLabel*>())
            if (label->buddy() != nullptr) texts << label->text();
        for (const auto* button : dialog.findChildren<QAbstractButton*>())
            texts << button->text();
        QTest::keyClick(&dialog, Qt::Key_F4, Qt::AltModifier);
    };
    const auto textsIn = [&](std::string_view language) {
        i18n::SetUiLanguage(language);
        texts.clear();
        Then(read);
        bool answered = Adjust();
        Then(read);
        answered |= dialogs_.AskGamma().has_value();
        Then(read);
        answered |= dialogs_.AskGradient().has_value();
        Then(read);
        answered |= dialogs_.AskFit({48, 48}).has_value();
        EXPECT_FALSE(answered) << "closed";
        return texts.join('|').toStdString();
    };
    EXPECT_EQ(textsIn(i18n::kEnglish),
              "KestrelIconEditor - Color Adjustment|Brightness:|Red(R):|Green(G):|Blue(B):|Reset|"
              "OK|Cancel|KestrelIconEditor - Gamma Correction|Input Gamma Factor * 100|&OK|&Cancel|"
              "KestrelIconEditor - Gradient Background|  (R):|  (G):|  (B):|Degrees:|"
              "  (R):|  (G):|  (B):|OK|Cancel|KestrelIconEditor - Paste|Shrink to fit.|"
              "Shrink to fit keeping aspect.|OK|Cancel");
    EXPECT_EQ(
        textsIn(i18n::kChinese),
        "KestrelIconEditor - 颜色调整|亮度:|红(R):|绿(G):|蓝(B):|复位|确定|取消|"
        "KestrelIconEditor - 伽马校正|输入伽马要素 * 100|确定(&O)|取消(&C)|KestrelIconEditor - "
        "填充渐变色|红(R):|绿(G):|蓝(B):| 角度:|红(R):|绿(G):|蓝(B):|确定|取消|"
        "KestrelIconEditor - 粘贴|收缩尺寸|保持原比例|确定|取消");
}

}  // namespace
}  // namespace kestrel::windows
