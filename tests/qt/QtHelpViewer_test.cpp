#include "platform/qt/QtHelpViewer.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QPointer>
#include <QTemporaryDir>
#include <QtTest/QTest>

#include "tests/support/Services.h"

namespace kestrel::qt {
namespace {

class QtHelpViewerTest : public testing::Test {
  protected:
    std::string Page(const char* name, const char* text) {
        QFile file(folder_.filePath(QString::fromLatin1(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return file.fileName().toStdString();
    }
    std::string Shown() { return help_.Window()->toPlainText().toStdString(); }
    // Opens the English page and enters a link of it, as by keyboard.
    void FollowLink(int number) {
        help_.Close();
        ASSERT_TRUE(help_.ShowHelp(english_, "Help"));
        for (int i = 0; i < number; ++i)
            QTest::keyClick(help_.Window(), Qt::Key_Tab);
        QTest::keyClick(help_.Window(), Qt::Key_Return);
    }

    QTemporaryDir folder_;
    const std::string english_ =
        Page("en.html",
             "<a href='#x'>in</a> <a href='zh.html'>other</a> "
             "<a href='https://example.org/a'>web</a> <a name='x'>English</a>");
    const std::string chinese_ = Page("zh.html", "Chinese");
    test::RecordingShell shell_;
    QtHelpViewer help_{shell_};
};

TEST_F(QtHelpViewerTest, FollowsLinksInsideAndLeavesTheWebToTheShell) {
    EXPECT_FALSE(help_.ShowHelp(folder_.path().toStdString(), "Help"));
    EXPECT_EQ(help_.Window(), nullptr);
    FollowLink(1);
    EXPECT_EQ(help_.Window()->windowTitle(), "Help");
    EXPECT_EQ(help_.Window()->source().fragment(), "x");
    FollowLink(3);
    EXPECT_EQ(shell_.opened, std::vector<std::string>{"https://example.org/a"});
    EXPECT_EQ(Shown(), "in other web English");
    FollowLink(2);
    EXPECT_EQ(Shown(), "Chinese");
}

TEST_F(QtHelpViewerTest, OneWindowChangesLanguageAndForgetsTheWayBack) {
    help_.ChangePage(english_, "Help");
    EXPECT_EQ(help_.Window(), nullptr) << "there is nothing to change";
    ASSERT_TRUE(help_.ShowHelp(english_, "Help"));
    const QPointer<QTextBrowser> window = help_.Window();
    window->setWindowState(Qt::WindowMaximized);
    help_.ChangePage(chinese_, "帮助");
    EXPECT_EQ(help_.Window(), window);
    EXPECT_EQ(Shown(), "Chinese");
    EXPECT_EQ(window->windowTitle(), QStringLiteral("帮助"));
    EXPECT_FALSE(window->isBackwardAvailable());
    ASSERT_TRUE(help_.ShowHelp(chinese_, "帮助"));
    EXPECT_TRUE(window->isMaximized());
}

TEST_F(QtHelpViewerTest, ClosesByKeyAndByItsOwner) {
    ASSERT_TRUE(help_.ShowHelp(english_, "Help"));
    for (const QKeyCombination key : {QKeyCombination(Qt::Key_Escape), Qt::ALT | Qt::Key_F4}) {
        QApplication::setActiveWindow(help_.Window());
        QTest::keyClick(help_.Window(), key.key(), key.keyboardModifiers());
        EXPECT_FALSE(help_.Window()->isVisible());
        // Asked for again before the closed window is gone.
        ASSERT_TRUE(help_.ShowHelp(english_, "Help"));
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ASSERT_TRUE(help_.Window() != nullptr && help_.Window()->isVisible());
    }
    help_.Close();
    EXPECT_EQ(help_.Window(), nullptr);
}

}  // namespace
}  // namespace kestrel::qt
