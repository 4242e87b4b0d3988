#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

// Window tests need no display, and keep away from the settings of whoever runs them.
int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
