#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QTimer>
#include <QtTest/QTest>
#include <algorithm>

#include "desktop/DialogStyle.h"
#include "desktop/LibraryTranslator.h"
#include "desktop/QtDesktopDialogs.h"
#include "desktop/QtMessageBoxes.h"
#include "i18n/Language.h"
#include "tests/support/Recorders.h"
#include "tests/system/TemporaryFolder.h"

namespace kestrel::desktop {
namespace {

using namespace std::string_literals;
using services::FileRecord;
using services::kConfirmed;

// Dialogs, and a folder with empty files and a folder.
class DialogsTest : public system::TemporaryFolder {
  protected:
    DialogsTest() {
        for (const char* name : {"bird.ico", "plain", "sub/kite.ico"})
            system::MakeFile(Path(name), "");
    }
    // A user in the dialog that comes up next: acts, confirms or cancels; cancels when it stays.
    template <class Dialog>
    static void InNext(bool confirms, std::function<void(Dialog& dialog)> act) {
        QTimer::singleShot(0, [confirms, act = std::move(act)] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            act(*dialog);
            if (confirms) static_cast<QDialog*>(dialog)->accept();
            if (dialog->isVisible()) dialog->reject();
        });
    }

    test::ScriptedBoxes boxes_;
    test::MemoryFiles files_;
    QtPrinter printer_{files_};
    QtDesktopDialogs dialogs_{boxes_, printer_};
};

TEST_F(DialogsTest, SaveBeginsAsToldAndAnswers) {
    FileRecord asked;
    asked.initialFolder = Path("");
    asked.filter = "Icon Files (*.ico)\0*.ico;*.cur\0All Files (*.*)\0*.*\0\0"s;
    asked.filterIndex = 2;
    asked.defaultExtension = ".ico";
    asked.flags = services::kOverwritePrompt;
    // The file that is chosen; nothing where the dialog has to be cancelled.
    const auto save = [&](const char* proposed, const char* typed) {
        FileRecord record = asked;
        record.file = proposed;
        InNext<QFileDialog>(true, [=](QFileDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "KestrelIconEditor - Save As");
            EXPECT_EQ(dialog.nameFilters().join('|'),
                      "Icon Files (*.ico) (*.ico *.cur)|All Files (*.*) (*)");
            EXPECT_EQ(dialog.findChild<QLineEdit*>()->text(), proposed);
            dialog.findChild<QLineEdit*>()->setText(typed);
        });
        const bool confirmed = dialogs_.GetSaveFileName(record) == kConfirmed;
        EXPECT_EQ(record.filterIndex, 2);
        return confirmed ? record.file : "";
    };
    boxes_.answers = {services::Answer::No, services::Answer::Yes};
    EXPECT_EQ(save("one.ico", "BIRD"), "");
    EXPECT_EQ(save("*.ico", "BIRD"), Path("bird.ico"));
    EXPECT_EQ(boxes_.shown.at(1).title, "KestrelIconEditor - Save As");
    // From now on where a file was chosen last; folders that were only looked at do not count.
    asked.initialFolder.clear();
    EXPECT_EQ(save("", "SUB/two"), Path("sub/two.ico"));
    EXPECT_EQ(save("", "/"), "");
    EXPECT_EQ(save("", "three"), Path("sub/three.ico"));
}

TEST_F(DialogsTest, PreviewTellsWhatOpenWouldTake) {
    const std::pair<const char*, const char*> cases[] = {
        {"several.ico", "32 x 32\n32 bits\n4 images"},
        {"pointer.cur", "24 x 24\n24 bits"},
        {"icons32.dll", "32 x 32\n4 bits\n2 icons"},
        {"make.sh", ""},
        {"gone.ico", ""}};
    FileRecord record;
    record.filter = "Icon Files (*.ico)\0*.ico\0\0"s;
    for (const auto& [name, text] : cases) {
        record.file = TEST_DATA "/" + std::string(name);
        InNext<QFileDialog>(false, [name = name, text = text](QFileDialog& dialog) {
            const auto widgets = dialog.findChildren<QWidget*>();
            const auto shown = std::ranges::find_if(widgets, [](const QWidget* widget) {
                return widget->accessibleName() == QStringLiteral("Preview");
            });
            ASSERT_NE(shown, widgets.end());
            EXPECT_EQ((*shown)->accessibleDescription().toStdString(), text) << name;
        });
        dialogs_.GetOpenFileName(record);
    }
}

TEST(QtMessageBoxes, WrapNamesWithoutBlanksAndHaveNoPicturesInButtons) {
    QApplication::setStyle(new DialogStyle);
    QTimer::singleShot(0, [] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        EXPECT_LT(box->width(), 640);
        for (const QAbstractButton* button : box->buttons())
            EXPECT_TRUE(button->icon().isNull());
        box->reject();
    });
    QtMessageBoxes().Show({}, services::BoxButtons::YesNoCancel, std::string(255, 'x'), "title");
}

TEST_F(DialogsTest, OpenReturnsSeveralFilesAndTheReadOnlyMark) {
    FileRecord record;
    record.initialFolder = Path("");
    record.flags = services::kMultiSelect | services::kReadOnly;
    InNext<QFileDialog>(true, [](QFileDialog& dialog) {
        dialog.findChild<QLineEdit*>()->setText("\"bird.ico\" \"plain\"");
        dialog.findChild<QCheckBox*>()->click();
    });
    EXPECT_EQ(dialogs_.GetOpenFileName(record), kConfirmed);
    EXPECT_EQ(record.file, folder_ + "\0bird.ico\0plain\0"s);
    EXPECT_EQ(record.flags, services::kMultiSelect);
}

TEST_F(DialogsTest, ColourAndCustomColoursAreGivenUnlessCancelled) {
    QColorDialog::setCustomColor(15, Qt::blue);
    for (const bool confirms : {false, true}) {
        services::ColorRecord record;
        record.color = 0x123456;
        record.flags = services::kInitialColor;
        InNext<QColorDialog>(confirms, [](QColorDialog& dialog) {
            EXPECT_EQ(dialog.currentColor(), QColor(0x56, 0x34, 0x12));
            EXPECT_EQ(QColorDialog::customColor(15), Qt::black);
            QColorDialog::setCustomColor(15, Qt::red);
            dialog.setCurrentColor(QColor(1, 2, 3));
            // It may have come up under the pointer.
            auto* cancel = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel);
            dialog.move(dialog.pos() + QCursor::pos() - cancel->mapToGlobal(QPoint(9, 9)));
            QTest::mouseClick(cancel, Qt::LeftButton, {}, QPoint(9, 9));
            QTest::mouseDClick(cancel, Qt::LeftButton, {}, QPoint(9, 9));
            QTest::mouseRelease(cancel, Qt::LeftButton, {}, QPoint(9, 9));
            EXPECT_TRUE(dialog.isVisible()) << "closed by the second half of a double click";
        });
        EXPECT_EQ(dialogs_.ChooseColor(record) == kConfirmed, confirms);
        EXPECT_EQ(record.color, confirms ? 0x030201U : 0x123456U);
        EXPECT_EQ(record.customColors[15], confirms ? 0x0000FFU : 0U);
        EXPECT_EQ(QColorDialog::customColor(15), Qt::blue) << "other programs have it, too";
        const QSettings kept(QSettings::UserScope, QStringLiteral("QtProject"));
        EXPECT_EQ(kept.value("Qt/customColors/15").toUInt(), 0xFF0000FFU);
    }
}

TEST_F(DialogsTest, PrinterDialogGivesTheFileAndTheCopies) {
    for (const bool confirms : {false, true}) {
        services::PrinterRecord record;
        record.choice.file = Path("page.pdf");
        InNext<QPrintDialog>(confirms, [](QPrintDialog& dialog) {
            dialog.findChild<QSpinBox*>("copies")->setValue(3);
        });
        EXPECT_EQ(dialogs_.ChoosePrinter(record) == kConfirmed, confirms);
        EXPECT_EQ(record.choice.copies, confirms ? 3 : 1);
        EXPECT_EQ(record.choice.file, Path("page.pdf"));
    }
}

TEST(LibraryTranslator, FollowsTheLanguageOfTheProgramAlone) {
    // A desktop's plugin may bring that of the system.
    QTranslator foreign;
    ASSERT_TRUE(foreign.load("qtbase_de", QLibraryInfo::path(QLibraryInfo::TranslationsPath)));
    LibraryTranslator translator;
    QApplication::installTranslator(&foreign);
    QApplication::installTranslator(&translator);
    for (const auto& [language, texts] :
         {std::pair{i18n::kEnglish, "Open Drive"}, {i18n::kChinese, "打开 驱动器"}}) {
        i18n::SetUiLanguage(language);
        const QString root = QFileIconProvider().type(QFileInfo("/"));
        EXPECT_EQ(QFileDialog::tr("Open") + " " + root, QString::fromUtf8(texts));
    }
    i18n::SetUiLanguage(i18n::kEnglish);
}

}  // namespace
}  // namespace kestrel::desktop
