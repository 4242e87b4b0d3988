#include "desktop/QtHelpViewer.h"

#include <QPointer>
#include <QtTest/QTest>

#include "tests/support/Services.h"
#include "tests/system/TemporaryFolder.h"

namespace kestrel::desktop {
namespace {

class QtHelpViewerTest : public system::TemporaryFolder {
  protected:
    QtHelpViewerTest() {
        system::MakeFile(Path("en.html"),
                         "<a href='https://example.org/a'>web</a> "
                         "<a href='zh.html'>other</a> English");
        system::MakeFile(Path("zh.html"), "Chinese");
    }
    std::string Shown() { return help_.Window()->toPlainText().toStdString(); }

    test::RecordingShell shell_;
    QtHelpViewer help_{shell_};
};

TEST_F(QtHelpViewerTest, FollowsLinksAndChangesLanguageInOneWindow) {
    EXPECT_FALSE(help_.ShowHelp(folder_, "Help"));
    for (const int tabs : {1, 2}) {
        help_.Close();
        ASSERT_TRUE(help_.ShowHelp(Path("en.html"), "Help"));
        for (int i = 0; i < tabs; ++i)
            QTest::keyClick(help_.Window(), Qt::Key_Tab);
        QTest::keyClick(help_.Window(), Qt::Key_Return);
        EXPECT_EQ(shell_.opened, std::vector<std::string>{"https://example.org/a"});
        EXPECT_EQ(Shown(), tabs == 1 ? "web other English" : "Chinese");
    }
    ASSERT_TRUE(help_.ShowHelp(Path("en.html"), "Help"));
    const QPointer<QTextBrowser> window = help_.Window();
    help_.ChangePage(Path("zh.html"), "帮助");
    EXPECT_EQ(help_.Window(), window);
    EXPECT_EQ(window->windowTitle(), QStringLiteral("帮助"));
    EXPECT_FALSE(window->isBackwardAvailable());
}

TEST_F(QtHelpViewerTest, SearchGoesRoundAndTellsWhatIsNotThere) {
    system::MakeFile(Path("long.html"), "one two tone");
    ASSERT_TRUE(help_.ShowHelp(Path("long.html"), "Help"));
    HelpWindow& window = *help_.Window();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(window.SearchField().hasFocus());
    const auto found = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&window.SearchField(), key, modifiers);
        return window.textCursor().selectionStart();
    };
    const std::tuple<Qt::Key, Qt::KeyboardModifiers, int> cases[] = {
        {Qt::Key_O, {}, 0},      {Qt::Key_N, {}, 0},  {Qt::Key_E, {}, 0},
        {Qt::Key_Return, {}, 9}, {Qt::Key_F3, {}, 0}, {Qt::Key_F3, Qt::ShiftModifier, 9}};
    for (const auto& [key, modifiers, at] : cases)
        EXPECT_EQ(found(key, modifiers), at) << key;
    const auto* notice = window.findChildren<QLabel*>().back();
    EXPECT_FALSE(notice->isVisible());
    EXPECT_EQ(found(Qt::Key_X), 9);
    EXPECT_TRUE(notice->isVisible());
}

}  // namespace
}  // namespace kestrel::desktop
