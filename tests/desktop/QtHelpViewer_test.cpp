#include "desktop/QtHelpViewer.h"

#include <gtest/gtest.h>

#include <QPointer>
#include <QTemporaryDir>
#include <QtTest/QTest>
#include <fstream>

#include "tests/support/Services.h"

namespace kestrel::desktop {
namespace {

class QtHelpViewerTest : public testing::Test {
  protected:
    std::string Page(const char* name, const char* text) {
        std::string path = folder_.filePath(QString::fromLatin1(name)).toStdString();
        std::ofstream(path) << text;
        return path;
    }
    std::string Shown() { return help_.Window()->toPlainText().toStdString(); }

    QTemporaryDir folder_;
    const std::string english_ = Page("en.html",
                                      "<a href='https://example.org/a'>web</a> "
                                      "<a href='zh.html'>other</a> English");
    const std::string chinese_ = Page("zh.html", "Chinese");
    test::RecordingShell shell_;
    QtHelpViewer help_{shell_};
};

TEST_F(QtHelpViewerTest, FollowsLinksAndChangesLanguageInOneWindow) {
    EXPECT_FALSE(help_.ShowHelp(folder_.path().toStdString(), "Help"));
    for (const int tabs : {1, 2}) {
        help_.Close();
        ASSERT_TRUE(help_.ShowHelp(english_, "Help"));
        for (int i = 0; i < tabs; ++i)
            QTest::keyClick(help_.Window(), Qt::Key_Tab);
        QTest::keyClick(help_.Window(), Qt::Key_Return);
        EXPECT_EQ(shell_.opened, std::vector<std::string>{"https://example.org/a"});
        EXPECT_EQ(Shown(), tabs == 1 ? "web other English" : "Chinese");
    }
    ASSERT_TRUE(help_.ShowHelp(english_, "Help"));
    const QPointer<QTextBrowser> window = help_.Window();
    help_.ChangePage(chinese_, "帮助");
    EXPECT_EQ(help_.Window(), window);
    EXPECT_EQ(window->windowTitle(), QStringLiteral("帮助"));
    EXPECT_FALSE(window->isBackwardAvailable());
}

}  // namespace
}  // namespace kestrel::desktop
