#include "windows/frmDrawState.h"

#include <QTimer>

#include "desktop/Pictures.h"
#include "tests/windows/WindowTest.h"

namespace kestrel::windows {
namespace {

using frmDrawStateTest = test::WindowTest;

TEST_F(frmDrawStateTest, ShowsSixStatesAndFollowsColoursAndLanguage) {
    Editor().EditIcon(editing::Leaves::Entry).PaintCell(0, 0, 0x204060);
    const QPalette before = QApplication::palette();
    QTimer::singleShot(0, &window_, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        QPalette colors(Qt::black);
        for (const auto& [role, color] : {std::pair{QPalette::Window, Qt::white},
                                          {QPalette::WindowText, Qt::darkRed},
                                          {QPalette::Highlight, Qt::black},
                                          {QPalette::Base, Qt::blue}})
            colors.setColor(role, color);
        QApplication::setPalette(colors);
        i18n::SetUiLanguage(i18n::kChinese);
        QEvent changed(QEvent::LanguageChange);
        QApplication::sendEvent(dialog, &changed);
        EXPECT_TRUE(ScreenIsFresh(*dialog));
        const QImage shown = dialog->grab().toImage();
        const gdi::COLORREF expected[] = {0x204060, 0x808080, 0x0080FF,
                                          0x000080, 0x102030, 0x8F2030};
        for (int i = 0; i < 6; ++i)
            EXPECT_EQ(desktop::ToColorRef(shown.pixelColor(25 + 50 * i, 30)), expected[i]) << i;
        EXPECT_EQ(shown.pixelColor(1, 1), QColor(0xF0, 0xF0, 0xF0)) << "not white";
        EXPECT_EQ(dialog->windowTitle().toStdString(), "KestrelIconEditor - 测试图标");
        QTest::keyClick(dialog, Qt::Key_Return);
        EXPECT_FALSE(dialog->isVisible());
    });
    Item("mnuToolsOpts4")->trigger();
    QApplication::setPalette(before);
}

}  // namespace
}  // namespace kestrel::windows
