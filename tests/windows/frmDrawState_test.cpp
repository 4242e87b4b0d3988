#include "windows/frmDrawState.h"

#include <QTimer>

#include "desktop/Pictures.h"
#include "tests/windows/WindowTest.h"

namespace kestrel::windows {
namespace {

class frmDrawStateTest : public test::WindowTest {};

TEST_F(frmDrawStateTest, ShowsSixStatesAndFollowsColoursAndLanguage) {
    Editor().EditIcon(editing::Leaves::Entry).PaintCell(0, 0, 0x204060);
    const QPalette before = QApplication::palette();
    QTimer::singleShot(0, &window_, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        const auto pixel = [&](int x) {
            return desktop::ToColorRef(dialog->grab().toImage().pixelColor(x, 30));
        };
        const auto average = [](gdi::COLORREF a, QPalette::ColorRole role) {
            return (a & 0xFEFEFE) / 2 +
                   (desktop::ToColorRef(QApplication::palette().color(role)) & 0xFEFEFE) / 2;
        };
        for (const auto background : {Qt::white, Qt::darkBlue}) {
            QPalette colors = before;
            colors.setColor(QPalette::Window, background);
            colors.setColor(QPalette::Text, QColor(1, 2, 3));
            QApplication::setPalette(colors);
            QApplication::processEvents();
            EXPECT_EQ(pixel(1), background == Qt::white ? 0xF0F0F0U : 0x800000U);
            const gdi::COLORREF expected[] = {0x204060,
                                              0x808080,
                                              0x0080FF,
                                              0x030201,
                                              average(0x204060, QPalette::Highlight),
                                              average(0x204060, QPalette::Base)};
            for (int i = 0; i < 6; ++i)
                EXPECT_EQ(pixel(25 + 50 * i), expected[i]) << i;
        }
        EXPECT_TRUE(ScreenIsFresh(*dialog));
        i18n::SetUiLanguage(i18n::kChinese);
        QEvent changed(QEvent::LanguageChange);
        QApplication::sendEvent(dialog, &changed);
        EXPECT_EQ(dialog->windowTitle().toStdString(), "KestrelIconEditor - 测试图标");
        QTest::keyClick(dialog, Qt::Key_Return);
        EXPECT_FALSE(dialog->isVisible());
    });
    Item("mnuToolsOpts4")->trigger();
    QApplication::setPalette(before);
}

}  // namespace
}  // namespace kestrel::windows
