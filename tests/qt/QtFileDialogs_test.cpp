#include "platform/qt/QtFileDialogs.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest/QTest>

namespace kestrel::qt {
namespace {

// A user at the keyboard: types names into the file dialog, one after the other, and answers every
// box that comes up in between.
class Typist {
  public:
    Typist(QStringList names, QMessageBox::StandardButton answer)
        : names_(std::move(names)), answer_(answer) {
        Wait();
    }
    QStringList boxes;

  private:
    void Wait() {
        QTimer::singleShot(kPause, &life_, [this] { Act(); });
    }
    // The dialog reads its folder behind its window, and then marks the file it proposes.
    bool HasSettled(const QWidget& dialog) {
        const auto* list = dialog.findChild<QListView*>(QStringLiteral("listView"));
        if (list->model()->rowCount(list->rootIndex()) == 0) return false;
        return ++ticksWithFiles_ > 2;
    }
    void Act() {
        Wait();  // a key may open a box, which only comes back when it is answered
        QWidget* front = QApplication::activeModalWidget();
        if (front == nullptr) return;
        if (auto* box = qobject_cast<QMessageBox*>(front)) {
            boxes << box->text();
            box->button(box->buttons().size() > 1 ? answer_ : QMessageBox::Ok)->click();
        } else if (names_.isEmpty()) {
            QTest::keyClick(front, Qt::Key_Escape);
        } else if (HasSettled(*front)) {
            auto* edit = front->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            edit->setText(names_.takeFirst());
            QTest::keyClick(edit, Qt::Key_Return);
        }
    }

    static constexpr int kPause = 40;  // milliseconds
    int ticksWithFiles_ = 0;
    QStringList names_;
    QMessageBox::StandardButton answer_;
    QObject life_;
};

class QtFileDialogsTest : public testing::Test {
  protected:
    void SetUp() override {
        for (const char* name : {"bird.ico", "st*r.ico"}) {
            QFile file(folder_.filePath(QString::fromUtf8(name)));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        }
        request_.title = "Title";
        request_.filter = "Icon Files (*.ico)|*.ico";
        request_.defaultExtension = ".ico";
        request_.fileMustExist = request_.overwritePrompt = request_.pathMustExist = true;
        request_.fileName = folder_.filePath(QStringLiteral("bird.ico")).toStdString();
    }

    QTemporaryDir folder_;
    dialogs::FileRequest request_;
    QtFileDialogs dialogs_;
};

TEST_F(QtFileDialogsTest, SavingChecksNamesAndAsksBeforeReplacing) {
    struct {
        const char* typed;
        QMessageBox::StandardButton answer;
        const char *box, *chosen;  // what its text goes on with; empty: no box, the dialog stayed
    } const cases[] = {
        {"new", QMessageBox::No, "", "new.ico"},
        {"bird.ico", QMessageBox::No, " already exists.", ""},
        {"bird.ico", QMessageBox::Yes, " already exists.", "bird.ico"},
        {"BIRD.Ico", QMessageBox::No, " already exists.", ""},
        {"BIRD.Ico", QMessageBox::Yes, " already exists.", "bird.ico"},
        {"what?", QMessageBox::Yes, "\nThe file name is not valid.", ""},
        {"a\"b\".ico", QMessageBox::Yes, "\nThe file name is not valid.", ""},
        {"st*r.ico", QMessageBox::Yes, " already exists.", "st*r.ico"},
        {"<b>gone/new.ico", QMessageBox::Yes, "\nDirectory not found.", ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        Typist typist({QString::fromUtf8(c.typed)}, c.answer);
        const auto file = dialogs_.ShowSave(request_);
        const std::string path = folder_.filePath(QString::fromUtf8(c.chosen)).toStdString();
        EXPECT_EQ(file ? file->path : "", *c.chosen == '\0' ? "" : path);
        const std::string said = typist.boxes.join(QLatin1Char('|')).toStdString();
        EXPECT_EQ(typist.boxes.size(), *c.box == '\0' ? 0 : 1) << said;
        EXPECT_NE(said.find(c.box), std::string::npos) << said;
    }
}

TEST_F(QtFileDialogsTest, OpeningFindsFilesInOtherLetterCase) {
    Typist typist({folder_.filePath(QStringLiteral("none.ico")),
                   folder_.filePath(QStringLiteral("Bird.ICO"))},
                  QMessageBox::No);
    const auto file = dialogs_.ShowOpen(request_);
    ASSERT_TRUE(file);
    EXPECT_EQ(file->fileTitle, "bird.ico");
    const QString said = typist.boxes.join(QLatin1Char('|'));
    EXPECT_TRUE(said.startsWith(QStringLiteral("none.ico\nFile not found.")))
        << typist.boxes.size();
}

}  // namespace
}  // namespace kestrel::qt
