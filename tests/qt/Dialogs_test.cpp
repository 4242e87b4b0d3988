#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest/QTest>

#include "platform/qt/QtColorDialog.h"
#include "platform/qt/QtFileDialogs.h"

namespace kestrel::qt {
namespace {

// A user at the keyboard: types a name into the file dialog, answers every box that comes up, and
// gives up when the dialog stays.
class Typist {
  public:
    Typist(QString name, QMessageBox::StandardButton answer)
        : name_(std::move(name)), answer_(answer) {
        Wait();
    }
    QStringList boxes;

  private:
    void Wait() {
        constexpr int kPause = 40;  // milliseconds
        QTimer::singleShot(kPause, &life_, [this] { Act(); });
    }
    void Act() {
        Wait();  // a key may open a box, which only comes back when it is answered
        QWidget* front = QApplication::activeModalWidget();
        if (front == nullptr) return;
        if (auto* box = qobject_cast<QMessageBox*>(front)) {
            boxes << box->text();
            box->button(box->buttons().size() > 1 ? answer_ : QMessageBox::Ok)->click();
        } else if (name_.isEmpty()) {
            QTest::keyClick(front, Qt::Key_Escape);
        } else if (const auto* list = front->findChild<QListView*>(QStringLiteral("listView"));
                   list->model()->rowCount(list->rootIndex()) > 0 && ++ticksWithFiles_ > 2) {
            // The dialog has read its folder behind its window, and marked the file it proposes.
            auto* edit = front->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            edit->setText(std::exchange(name_, {}));
            QTest::keyClick(edit, Qt::Key_Return);
        }
    }

    int ticksWithFiles_ = 0;
    QString name_;
    QMessageBox::StandardButton answer_;
    QObject life_;
};

TEST(QtFileDialogs, CheckNamesAndAskBeforeReplacing) {
    const QTemporaryDir folder;
    for (const char* name : {"bird.ico", "st*r.ico"}) {
        QFile file(folder.filePath(QString::fromUtf8(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    dialogs::FileRequest request;
    request.filter = "Icon Files (*.ico)|*.ico";
    request.defaultExtension = ".ico";
    request.fileMustExist = request.overwritePrompt = request.pathMustExist = true;
    request.fileName = folder.filePath(QStringLiteral("bird.ico")).toStdString();
    struct {
        bool opens;
        const char* typed;
        QMessageBox::StandardButton answer;
        const char *box, *chosen;  // empty: no box, the dialog stayed
    } const cases[] = {
        {false, "new", QMessageBox::No, "", "new.ico"},
        {false, "bird.ico", QMessageBox::No, " already exists.", ""},
        {false, "BIRD.Ico", QMessageBox::Yes, "bird.ico already exists.", "bird.ico"},
        {false, "what?", QMessageBox::Yes, "\nThe file name is not valid.", ""},
        {false, "a\"b\".ico", QMessageBox::Yes, "\nThe file name is not valid.", ""},
        {false, "st*r.ico", QMessageBox::Yes, " already exists.", "st*r.ico"},
        {false, "<b>gone/new.ico", QMessageBox::Yes, "\nDirectory not found.", ""},
        {true, "none.ico", QMessageBox::No, "none.ico\nFile not found.", ""},
        {true, "Bird.ICO", QMessageBox::No, "", "bird.ico"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        Typist typist(QString::fromUtf8(c.typed), c.answer);
        QtFileDialogs dialogs;
        const auto file = c.opens ? dialogs.ShowOpen(request) : dialogs.ShowSave(request);
        EXPECT_EQ(file ? file->fileTitle : "", c.chosen);
        const std::string path = folder.filePath(QString::fromUtf8(c.chosen)).toStdString();
        EXPECT_TRUE(!file || file->path == path);
        EXPECT_EQ(typist.boxes.size(), *c.box == '\0' ? 0 : 1);
        EXPECT_TRUE(typist.boxes.join(QString()).contains(QString::fromUtf8(c.box)));
    }
}

TEST(QtColorDialog, GivesTheColourThatWasAcceptedAndElseTheCancel) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        QTimer::singleShot(0, [key] {
            auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->currentColor(), QColor(0x56, 0x34, 0x12));
            dialog->setCurrentColor(QColor(1, 2, 3));
            QTest::keyClick(dialog, key);
        });
        const auto chosen = QtColorDialog().ShowColor(0x123456);
        EXPECT_EQ(chosen.value_or(0), key == Qt::Key_Return ? 0x030201U : 0U);
        EXPECT_TRUE(chosen || chosen.error().number == kDialogCancelled);
    }
}

}  // namespace
}  // namespace kestrel::qt
