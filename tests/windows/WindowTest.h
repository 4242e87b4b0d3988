#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QMenuBar>
#include <QtTest/QTest>

#include "formats/IcoFile.h"
#include "i18n/Language.h"
#include "tests/support/Services.h"
#include "windows/FrmIcoEd.h"

namespace kestrel::test {

// The main window as a start leaves it, with an icon file on the disk.
class WindowTest : public testing::Test {
  protected:
    WindowTest() {
        EXPECT_TRUE(formats::WriteIcoCopy(given_.files, {}, "/icons/a.ico"));
        window_.Form_Load("");
        window_.show();
        QApplication::setActiveWindow(&window_);
        QApplication::processEvents();
    }
    void TearDown() override { i18n::SetUiLanguage(i18n::kEnglish); }

    editing::Editor& Editor() { return window_.OpenEditor(); }
    document::IconDocument& Icon() { return Editor().Document(); }
    QWidget* Grid() { return &window_.GridWidget(); }
    QAction* Item(std::string_view key) { return window_.BarAction(key); }
    QWidget* Control(const std::string& name) { return window_.findChild<QWidget*>(name.c_str()); }
    std::string Hint() { return window_.StatusText(editing::StatusPanel::Hint); }
    // What is on the screen is what a complete repaint would show.
    testing::AssertionResult ScreenIsFresh() { return ScreenIsFresh(window_); }
    static testing::AssertionResult ScreenIsFresh(QWidget& window) {
        QApplication::processEvents();
        const QImage shown = window.screen()->grabWindow(window.winId()).toImage();
        const QImage fresh = window.grab().toImage().convertToFormat(shown.format());
        return shown == fresh ? testing::AssertionSuccess() : testing::AssertionFailure();
    }

    FakeServices given_;
    windows::FrmIcoEd window_{given_.Given()};
};

}  // namespace kestrel::test
