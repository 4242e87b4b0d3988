#include <gtest/gtest.h>

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QPrintDialog>
#include <QRegularExpression>
#include <QSettings>
#include <QSpinBox>
#include <QTemporaryDir>

#include "desktop/QtDesktopDialogs.h"
#include "desktop/TableTranslator.h"
#include "i18n/DesktopTexts.h"
#include "i18n/Language.h"
#include "tests/support/Typist.h"

namespace kestrel::desktop {
namespace {

using namespace std::string_literals;
using services::FileRecord;
using services::kConfirmed;
using test::Typist;

// Dialogs in a folder with these empty files.
class FileDialogTest : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(QDir(folder_.path()).mkdir("sub"));
        for (const char* name : {"bird.ico", "st*r.ico", "plain", "sub/kite.ico"}) {
            QFile file(folder_.filePath(QString::fromUtf8(name)));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        }
        record_.initialFolder = Path("");
        record_.filter = "Icon Files (*.ico)\0*.ico;*.cur\0All Files (*.*)\0*.*\0\0"s;
        record_.defaultExtension = ".ico";
    }
    std::string Path(const char* name) const {
        return folder_.filePath(QString::fromUtf8(name)).toStdString();
    }

    const QTemporaryDir folder_;
    QtDesktopDialogs dialogs_;
    FileRecord record_;
};

TEST_F(FileDialogTest, ChecksNamesAndAsksBeforeReplacing) {
    record_.flags = 0x1806;
    record_.filterIndex = 2;
    struct {
        bool opens;
        const char* typed;
        QMessageBox::StandardButton answer;
        const char *box, *chosen;  // empty: no box, the dialog stayed
    } const cases[] = {
        {false, "new", QMessageBox::No, "", "new.ico"},
        {false, "new.x", QMessageBox::No, "", "new.x"},
        {false, "bird", QMessageBox::No, "bird.ico already exists.", ""},
        {false, "bird.ico", QMessageBox::No, " already exists.", ""},
        {false, "BIRD.Ico", QMessageBox::Yes, "bird.ico already exists.", "bird.ico"},
        {false, "what?", QMessageBox::Yes, "\nThe file name is not valid.", ""},
        {false, "a\"b\".ico", QMessageBox::Yes, "\nThe file name is not valid.", ""},
        {false, "st*r.ico", QMessageBox::Yes, " already exists.", "st*r.ico"},
        {false, "sub/", QMessageBox::No, "", ""},
        {false, "sub", QMessageBox::No, "", ""},
        {true, "*", QMessageBox::No, "*\nThe file name is not valid.", ""},
        {false, "<b>gone/new.ico", QMessageBox::Yes, "\nDirectory not found.", ""},
        {true, "none.ico", QMessageBox::No, "none.ico\nFile not found.", ""},
        {true, "Bird.ICO", QMessageBox::No, "", "bird.ico"},
        {true, "bird", QMessageBox::No, "", "bird.ico"},
        {true, "plain", QMessageBox::No, "", "plain"},
        {true, "", QMessageBox::No, "", ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        Typist typist(QString::fromUtf8(c.typed), c.answer);
        FileRecord record = record_;
        const bool chosen = (c.opens ? dialogs_.GetOpenFileName(record)
                                     : dialogs_.GetSaveFileName(record)) == kConfirmed;
        EXPECT_EQ(chosen ? record.fileTitle : "", c.chosen);
        EXPECT_EQ(record.file, chosen ? Path(c.chosen) : "");
        EXPECT_EQ(record.filterIndex, 2);
        EXPECT_EQ(typist.boxes.size(), *c.box == '\0' ? 0 : 1);
        EXPECT_TRUE(typist.boxes.join(QString()).contains(QString::fromUtf8(c.box)));
    }
    for (const bool fits : {true, false}) {
        FileRecord record = record_;
        record.maxFile = Path("abc.ico").size() + (fits ? 1 : 0);
        Typist typist(QStringLiteral("abc"), QMessageBox::No);
        EXPECT_EQ(dialogs_.GetSaveFileName(record), fits ? kConfirmed : 0);
        EXPECT_EQ(typist.boxes.join(QString()), fits ? "" : "abc.ico\nThe file name is too long.");
    }
}

TEST_F(FileDialogTest, ReturnsSeveralFilesAndTheReadOnlyMark) {
    record_.flags = 0x1201;
    record_.filterIndex = 2;
    Typist typist(QStringLiteral("\"bird.ico\" \"plain\""), QMessageBox::No);
    QTimer::singleShot(0, [] {
        auto* box = QApplication::activeModalWidget()->findChild<QCheckBox*>();
        EXPECT_EQ(box->text(), "Open as &read-only");
        EXPECT_TRUE(box->isChecked());
        box->click();
    });
    ASSERT_EQ(dialogs_.GetOpenFileName(record_), kConfirmed);
    record_.file.erase(0, Path("").size());
    EXPECT_EQ(record_.file, "\0bird.ico\0plain\0"s);
    EXPECT_EQ(record_.fileTitle, "");
    EXPECT_EQ(record_.flags, 0x1200U);
    record_ = {};
    record_.flags = 0x4;
    Typist another({}, QMessageBox::No);
    QTimer::singleShot(
        0, [] { EXPECT_EQ(QApplication::activeModalWidget()->findChild<QCheckBox*>(), nullptr); });
    EXPECT_EQ(dialogs_.GetOpenFileName(record_), 0);
}

TEST_F(FileDialogTest, BeginsWhereAndHowItIsTold) {
    const auto titleOf = [this](bool opens) {
        Typist typist({}, QMessageBox::No);
        EXPECT_EQ(opens ? dialogs_.GetOpenFileName(record_) : dialogs_.GetSaveFileName(record_), 0);
        return typist.title;
    };
    EXPECT_EQ(titleOf(true), "Open");
    EXPECT_EQ(titleOf(false), "Save As");
    record_.title = "Mine";
    EXPECT_EQ(titleOf(true), "Mine");
    // The folder where a file was chosen last, unless told otherwise; the proposed name.
    for (const auto& [name, typed, chosen] : {std::tuple{"one.ico", "sub/one", "sub/one.ico"},
                                              {"", "../two", "two.ico"},
                                              {"", "", ""},
                                              {"", "three", "three.ico"}}) {
        SCOPED_TRACE(typed);
        record_.file = name;
        Typist typist(QString::fromUtf8(typed), QMessageBox::No);
        QTimer::singleShot(0, [&name = name, &typed = typed] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            EXPECT_EQ(dialog->findChild<QLineEdit*>("fileNameEdit")->text(), name);
            EXPECT_EQ(dialog->findChild<QComboBox*>("fileTypeCombo")->itemText(1),
                      "All Files (*.*)");
            EXPECT_EQ(dialog->nameFilters().join('|'),
                      "Icon Files (*.ico) (*.ico *.cur)|All Files (*.*) (*)");
            // Looking elsewhere without a choice is not remembered.
            if (*typed == '\0') dialog->setDirectory("/");
        });
        const bool confirmed = dialogs_.GetSaveFileName(record_) == kConfirmed;
        EXPECT_EQ(confirmed ? record_.file : "", *typed == '\0' ? "" : Path(chosen));
        record_.initialFolder.clear();
    }
}

bool IsEnglish(const QString& text) {
    static const QRegularExpression word(QStringLiteral("^[^\\x{4E00}-\\x{9FFF}]*[a-z]{2,}"));
    return word.match(text).hasMatch();
}

TEST(ColorDialog, GivesColourAndCustomColoursUnlessCancelled) {
    services::ColorRecord asked;
    asked.color = 0x123456;
    asked.customColors[1] = 0x0A0B0C;
    asked.flags = services::kInitialColor;
    QColorDialog::setCustomColor(15, Qt::blue);
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        QTimer::singleShot(0, [key] {
            auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->currentColor(), QColor(0x56, 0x34, 0x12));
            EXPECT_EQ(QColorDialog::customColor(1), QColor(0x0C, 0x0B, 0x0A));
            QColorDialog::setCustomColor(15, Qt::red);
            dialog->setCurrentColor(QColor(1, 2, 3));
            QTest::keyClick(dialog, key);
        });
        services::ColorRecord record = asked;
        const bool chosen = QtDesktopDialogs().ChooseColor(record) == kConfirmed;
        EXPECT_EQ(chosen, key == Qt::Key_Return);
        EXPECT_EQ(record.color, chosen ? 0x030201U : 0x123456U);
        EXPECT_EQ(record.customColors[15], chosen ? 0x0000FFU : 0U);
        EXPECT_EQ(record.customColors[1], 0x0A0B0CU);
        const QSettings kept(QSettings::UserScope, QStringLiteral("QtProject"));
        EXPECT_EQ(QColorDialog::customColor(15), Qt::blue) << "other programs have it, too";
        EXPECT_EQ(kept.value("Qt/customColors/15").toUInt(), 0xFF0000FFU);
    }
}

TEST(PrinterDialog, GivesTheFileAndTheCopies) {
    const QTemporaryDir folder;
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        services::PrinterRecord record;
        record.choice.file = folder.filePath("page.pdf").toStdString();
        record.choice.copies = 2;
        QTimer::singleShot(0, [key] {
            auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            auto* copies = dialog->findChild<QSpinBox*>("copies");
            EXPECT_EQ(copies->value(), 2);
            copies->setValue(3);
            QTest::keyClick(dialog, key);
        });
        const bool chosen = QtDesktopDialogs().ChoosePrinter(record) == kConfirmed;
        EXPECT_EQ(chosen, key == Qt::Key_Return);
        EXPECT_EQ(record.choice.copies, chosen ? 3 : 2);
        EXPECT_EQ(record.choice.file, folder.filePath("page.pdf").toStdString());
    }
}

// What a user reads in the dialogs, but for names and numbers.
TEST(Dialogs, SpeakChinese) {
    TableTranslator translator(i18n::DesktopText);
    QApplication::installTranslator(&translator);
    i18n::SetUiLanguage(i18n::kChinese);
    QtDesktopDialogs dialogs;
    FileRecord file;
    services::ColorRecord color;
    services::PrinterRecord printer;
    const std::function<std::int32_t()> shows[] = {[&] { return dialogs.GetOpenFileName(file); },
                                                   [&] { return dialogs.GetSaveFileName(file); },
                                                   [&] { return dialogs.ChooseColor(color); },
                                                   [&] { return dialogs.ChoosePrinter(printer); }};
    for (const auto& show : shows) {
        QTimer::singleShot(0, [] {
            QWidget* dialog = QApplication::activeModalWidget();
            EXPECT_FALSE(IsEnglish(dialog->windowTitle())) << dialog->windowTitle().toStdString();
            for (const QWidget* part : dialog->findChildren<QWidget*>()) {
                for (const char* property : {"text", "title"}) {
                    const bool isTyped = qobject_cast<const QLineEdit*>(part) != nullptr;
                    const QString text = part->property(property).toString();
                    EXPECT_FALSE(!isTyped && IsEnglish(text)) << text.toStdString();
                }
            }
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        EXPECT_EQ(show(), 0);
    }
    i18n::SetUiLanguage(i18n::kEnglish);
    QApplication::removeTranslator(&translator);
}

}  // namespace
}  // namespace kestrel::desktop
