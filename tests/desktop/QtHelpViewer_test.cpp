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

}  // namespace
}  // namespace kestrel::desktop
