#include "platform/qt/QtColorDialog.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QColorDialog>
#include <QTimer>
#include <QtTest/QTest>

namespace kestrel::qt {
namespace {

TEST(QtColorDialog, GivesTheColourThatWasAcceptedAndElseTheCancel) {
    QtColorDialog colors;
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        QTimer::singleShot(0, [key] {
            auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->currentColor(), QColor(0x56, 0x34, 0x12));
            dialog->setCurrentColor(QColor(1, 2, 3));
            QTest::keyClick(dialog, key);
        });
        const auto chosen = colors.ShowColor(0x123456);
        EXPECT_EQ(chosen.has_value(), key == Qt::Key_Return);
        EXPECT_EQ(chosen.value_or(0), key == Qt::Key_Return ? 0x030201U : 0U);
        EXPECT_TRUE(chosen || chosen.error().number == kDialogCancelled);
    }
}

}  // namespace
}  // namespace kestrel::qt
