#include "desktop/QtApplication.h"

#include <gtest/gtest.h>

#include <QApplication>

namespace kestrel::desktop {
namespace {

TEST(QtApplication, ShowsTheHourglassAndLetsEventsRun) {
    QtApplication application;
    application.ShowHourglass(true);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    application.ShowHourglass(false);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    bool ran = false;
    QMetaObject::invokeMethod(
        qApp, [&] { ran = true; }, Qt::QueuedConnection);
    application.DoEvents();
    EXPECT_TRUE(ran);
}

}  // namespace
}  // namespace kestrel::desktop
