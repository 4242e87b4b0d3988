#include <gtest/gtest.h>

#include <QApplication>

// Window tests need no display.
int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
