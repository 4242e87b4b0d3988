#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <QtTest/QTest>

#include "i18n/Language.h"
#include "imaging/FrmColAdj.h"
#include "imaging/FrmImagingDialogs.h"
#include "imaging/FrmShades.h"
#include "imaging/frmGamma.h"
#include "platform/qt/Pictures.h"

namespace kestrel::imaging {
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
void Click(const QWidget& dialog, const char* name) {
    QTest::mouseClick(Find<QPushButton>(dialog, name), Qt::LeftButton);
}
void Show(QWidget& dialog) {
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    QApplication::processEvents();
}
// What the window shows at a pixel of a picture.
gdi::COLORREF Shown(const QWidget& dialog, const char* picture, int x, int y) {
    return qt::ToColorRef(Find<QWidget>(dialog, picture)->grab().toImage().pixelColor(x, y));
}
// Does this in the dialog that comes up next.
void Then(const std::function<void(QWidget& dialog)>& act) {
    QTimer::singleShot(0, qApp, [act] {
        QWidget* dialog = QApplication::activeModalWidget();
        QApplication::setActiveWindow(dialog);
        act(*dialog);
    });
}

// An icon whose only opaque pixel is the one at (1, 0).
document::IconDocument OnePixel(gdi::COLORREF color) {
    document::IconDocument icon;
    icon.PicMask.SetPixel(1, 0, gdi::kBlack);
    icon.PicImage.SetPixel(1, 0, color);
    return icon;
}

class FrmColAdjTest : public testing::Test {
  protected:
    FrmColAdjTest() { Show(dialog_); }
    gdi::COLORREF Pixel() { return Shown(dialog_, "PicShade", 1, 0); }

    ColorAdjustment colors_{OnePixel(gdi::Rgb(252, 100, 3))};
    gdi::Surface preview_{32, 32, kGround};
    FrmColAdj dialog_{nullptr, colors_, preview_};
    QScrollBar* red_ = Bar(dialog_, "VsbRed");
};

TEST_F(FrmColAdjTest, ADragIsOneStepAndTheLabelFollowsIt) {
    QScrollBar* green = Bar(dialog_, "VsbGreen");
    const QPoint thumb = green->rect().center();
    QTest::mousePress(green, Qt::LeftButton, {}, thumb);
    QTest::mouseMove(green, thumb - QPoint(0, 20));
    QTest::mouseMove(green, thumb - QPoint(0, 40));
    EXPECT_GT(std::stoi(LabelOf(dialog_, "LblGreen")), 50);
    EXPECT_EQ(Pixel(), kGround);
    QTest::mouseRelease(green, Qt::LeftButton, {}, thumb - QPoint(0, 40));
    EXPECT_GT(green->value(), 50);
    EXPECT_EQ(LabelOf(dialog_, "LblGreen"), std::to_string(green->value()));
    EXPECT_EQ(Pixel(), gdi::Rgb(252, 105, 3));
}

TEST_F(FrmColAdjTest, EveryControlRaisesTowardsTheTop) {
    const QPoint x(red_->width() / 2, 0);
    const QPoint top = x + QPoint(0, 4), bottom = x + QPoint(0, red_->height() - 5);
    const auto wheel = [&](int angle) {
        QWheelEvent event(top, red_->mapToGlobal(top), {}, {0, angle}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(red_, &event);
    };
    struct {
        const char* what;
        std::function<void()> act;
        int value;
    } const cases[] = {
        {"Up", [&] { QTest::keyClick(red_, Qt::Key_Up); }, 5},
        {"Right", [&] { QTest::keyClick(red_, Qt::Key_Right); }, 5},
        {"PageUp", [&] { QTest::keyClick(red_, Qt::Key_PageUp); }, 5},
        {"Down", [&] { QTest::keyClick(red_, Qt::Key_Down); }, -5},
        {"Home", [&] { QTest::keyClick(red_, Qt::Key_Home); }, 255},
        {"End", [&] { QTest::keyClick(red_, Qt::Key_End); }, -255},
        {"upper arrow", [&] { QTest::mouseClick(red_, Qt::LeftButton, {}, top); }, 5},
        {"lower arrow", [&] { QTest::mouseClick(red_, Qt::LeftButton, {}, bottom); }, -5},
        {"above the thumb",
         [&] { QTest::mouseClick(red_, Qt::LeftButton, {}, top + QPoint(0, 20)); }, 5},
        {"wheel up", [&] { wheel(120); }, 5},
        {"wheel down", [&] { wheel(-120); }, -5},
    };
    for (const auto& c : cases) {
        red_->setValue(0);
        c.act();
        EXPECT_EQ(red_->value(), c.value) << c.what;
    }
}

TEST_F(FrmColAdjTest, RestoresWhatWentTooFarAndLeavesTransparentPixels) {
    red_->setFocus();
    QTest::keyClick(red_, Qt::Key_Up);
    EXPECT_EQ(Pixel(), gdi::Rgb(252, 100, 3));
    QTest::keyClick(red_, Qt::Key_Down);
    EXPECT_EQ(Pixel(), gdi::Rgb(252, 100, 3));
    Bar(dialog_, "VsbBrightness")->setValue(-255);
    EXPECT_EQ(Pixel(), gdi::Rgb(247, 95, 3));
    red_->setValue(-10);
    Click(dialog_, "CmdReset");
    EXPECT_EQ(Pixel(), gdi::Rgb(252, 100, 3));
    EXPECT_EQ(LabelOf(dialog_, "LblRed") + LabelOf(dialog_, "LblBrightness"), "00");
    EXPECT_EQ(red_->value(), 0);
    // One step from where it all began.
    Bar(dialog_, "VsbBlue")->setValue(40);
    EXPECT_EQ(Pixel(), gdi::Rgb(252, 100, 8));
    EXPECT_EQ(Shown(dialog_, "PicShade", 0, 0), kGround);
}

TEST(FrmGammaTest, TakesDigitsAlone) {
    struct {
        const char* what;
        std::function<void(QWidget*)> type;
        const char* text;
    } const cases[] = {
        {"digits, up to four", [](auto* box) { QTest::keyClicks(box, "12034"); }, "1203"},
        {"others", [](auto* box) { QTest::keyClicks(box, "-1a.2 +:/"); }, "12"},
        {"Backspace",
         [](auto* box) {
             QTest::keyClicks(box, "12");
             QTest::keyClick(box, Qt::Key_Backspace);
         },
         "12"},
        {"Delete",
         [](auto* box) {
             QTest::keyClicks(box, "123");
             QTest::keyClick(box, Qt::Key_Home);
             QTest::sendKeyEvent(QTest::Click, box, Qt::Key_Delete, "\x7f", {});
         },
         "23"},
        {"Ctrl+V",
         [](auto* box) {
             QApplication::clipboard()->setText("77");
             QTest::sendKeyEvent(QTest::Click, box, Qt::Key_V, "\x16", Qt::ControlModifier);
         },
         ""},
        {"pasted",
         [](auto* box) {
             QApplication::clipboard()->setText("-7");
             static_cast<QLineEdit*>(box)->paste();
         },
         ""},
    };
    for (const auto& c : cases) {
        frmGamma dialog(nullptr);
        Show(dialog);
        auto* box = Find<QLineEdit>(dialog, "txtGamma");
        c.type(box);
        EXPECT_EQ(box->text().toStdString(), c.text) << c.what;
    }
}

class FrmShadesTest : public testing::Test {
  protected:
    FrmShadesTest() { Show(dialog_); }
    QLineEdit* Box(const char* name) { return Find<QLineEdit>(dialog_, name); }
    FrmShades dialog_{nullptr};
};

TEST_F(FrmShadesTest, BarFollowsTheTextAndTheTextTheBar) {
    struct {
        const char *typed, *text, *selected;
        int bar;
        const char* left;  // what is there after editing
    } const cases[] = {
        {"255", "255", "", 255, "255"}, {"300", "30", "30", 30, "30"},
        {"2550", "25", "25", 25, "25"}, {"007", "007", "", 7, "7"},
        {"-1x2", "12", "", 12, "12"},   {"3007", "7", "", 7, "7"},
        {"12\b", "1", "", 1, "1"},      {"1\b", "", "", 0, "0"},
    };
    QLineEdit* box = Box("TxtColor1");
    for (const auto& c : cases) {
        box->setFocus();
        box->selectAll();
        for (const char* key = c.typed; *key != 0; ++key)
            *key == '\b' ? QTest::keyClick(box, Qt::Key_Backspace) : QTest::keyClick(box, *key);
        EXPECT_EQ(box->text().toStdString(), c.text) << c.typed;
        EXPECT_EQ(box->selectedText().toStdString(), c.selected) << c.typed;
        EXPECT_EQ(Bar(dialog_, "Hsb1")->value(), c.bar) << c.typed;
        QTest::keyClick(box, Qt::Key_Tab);
        EXPECT_EQ(box->text().toStdString(), c.left) << c.typed;
    }
    QTest::keyClick(Bar(dialog_, "Hsb1"), Qt::Key_Right);
    EXPECT_EQ(box->text(), "1");
    box->setText("99999999999");
    EXPECT_EQ(Bar(dialog_, "Hsb1")->value(), 99);
}

TEST_F(FrmShadesTest, ShowsTheGradientOfItsBars) {
    EXPECT_EQ(Shown(dialog_, "PicSml", 31, 0), gdi::Rgb(247, 247, 247));
    QScrollBar* degrees = Bar(dialog_, "VsbDegrees");
    for (int turn = 1; turn <= 3; ++turn) {
        QTest::keyClick(degrees, Qt::Key_Up);
        EXPECT_EQ(LabelOf(dialog_, "LblDegrees"), std::to_string(turn * 45));
    }
    Bar(dialog_, "Hsb0")->setValue(64);
    Bar(dialog_, "Hsb3")->setValue(0);
    Bar(dialog_, "Hsb5")->setValue(128);
    // 62 of 64 steps from the upper right: red 64 - 62, green 255 * 62 / 64, blue 2 * 62.
    EXPECT_EQ(Shown(dialog_, "PicSml", 0, 31), gdi::Rgb(2, 247, 124));
    EXPECT_EQ(Shown(dialog_, "PicSml", 31, 0), gdi::Rgb(63, 4, 2));
}

// The three dialogs as the commands ask for them.
class ImagingDialogsTest : public testing::Test {
  protected:
    void TearDown() override { i18n::SetUiLanguage(i18n::kEnglish); }
    bool Adjust() { return dialogs_.AdjustColors(colors_, preview_); }

    QWidget owner_;
    FrmImagingDialogs dialogs_{owner_};
    ColorAdjustment colors_{OnePixel(gdi::kBlack)};
    gdi::Surface preview_{32, 32, kGround};
};

TEST_F(ImagingDialogsTest, GivesTheAnswerOrNone) {
    const auto press = [](const char* button) {
        return [button](QWidget& dialog) { Click(dialog, button); };
    };
    const auto key = [](Qt::Key pressed, const char* typed, const char* box) {
        return [=](QWidget& dialog) {
            QTest::keyClicks(Find<QWidget>(dialog, box), typed);
            QTest::keyClick(Find<QWidget>(dialog, box), pressed);
        };
    };
    Then(press("cmdOK"));
    EXPECT_TRUE(Adjust());
    Then(press("cmdCancel"));
    EXPECT_FALSE(Adjust());
    Then(key(Qt::Key_Return, "220", "txtGamma"));
    EXPECT_EQ(dialogs_.AskGamma(), 220);
    Then(press("cmdOK"));
    EXPECT_EQ(dialogs_.AskGamma(), 0);
    Then(key(Qt::Key_Escape, "220", "txtGamma"));
    EXPECT_EQ(dialogs_.AskGamma(), std::nullopt);
    Then(key(Qt::Key_Return, "4", "TxtColor2"));
    const auto picture = dialogs_.AskGradient();
    ASSERT_TRUE(picture.has_value());
    EXPECT_EQ(picture->GetPixel(0, 31), gdi::Rgb(0, 0, 4));
    Then(key(Qt::Key_Escape, "", "TxtColor2"));
    EXPECT_FALSE(dialogs_.AskGradient().has_value());
}

TEST_F(ImagingDialogsTest, SpeaksBothLanguages) {
    struct {
        std::string_view language;
        std::function<void()> ask;
        const char* title;
        QStringList texts;
    } const cases[] = {
        {i18n::kEnglish,
         [&] { Adjust(); },
         "KestrelIconEditor - Color Adjustment",
         {"Brightness:", "Red(R):", "Green(G):", "Blue(B):", "OK", "Cancel", "Reset"}},
        {i18n::kChinese,
         [&] { Adjust(); },
         "KestrelIconEditor - 颜色调整",
         {"亮度:", "红(R):", "绿(G):", "蓝(B):", "确定", "取消", "复位"}},
        {i18n::kEnglish,
         [&] { dialogs_.AskGamma(); },
         "KestrelIconEditor - Gamma Correction",
         {"Input Gamma Factor * 100", "&OK", "&Cancel"}},
        {i18n::kChinese,
         [&] { dialogs_.AskGamma(); },
         "KestrelIconEditor - 伽马校正",
         {"输入伽马要素 * 100", "确定", "取消"}},
        {i18n::kEnglish,
         [&] { dialogs_.AskGradient(); },
         "KestrelIconEditor - Gradient Background",
         {"  (R):", "  (G):", "  (B):", "Degrees:", "OK", "Cancel"}},
        {i18n::kChinese,
         [&] { dialogs_.AskGradient(); },
         "KestrelIconEditor - 填充渐变色",
         {"红(R):", "绿(G):", "蓝(B):", " 角度:", "确定", "取消"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.title);
        i18n::SetUiLanguage(c.language);
        Then([&](QWidget& dialog) {
            EXPECT_EQ(dialog.windowTitle().toStdString(), c.title);
            QSet<QString> texts;
            for (const auto* label : dialog.findChildren<QLabel*>())
                if (bool number = false; label->text().toInt(&number) == 0 && !number)
                    texts << label->text();
            for (const auto* button : dialog.findChildren<QPushButton*>())
                texts << button->text();
            EXPECT_EQ(texts, QSet<QString>(c.texts.begin(), c.texts.end()));
            QTest::keyClick(&dialog, Qt::Key_F4, Qt::AltModifier);
        });
        c.ask();
    }
}

}  // namespace
}  // namespace kestrel::imaging
