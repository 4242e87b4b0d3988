#pragma once

#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QTimer>
#include <QtTest/QTest>
#include <utility>

namespace kestrel::test {

// A user at the keyboard: types a name into the file dialog, answers every box that comes up (with
// Return for No), and gives up when the dialog stays. An empty name cancels at once.
class Typist {
  public:
    Typist(QString name, QMessageBox::StandardButton answer)
        : name_(std::move(name)), answer_(answer) {
        Wait();
    }
    QStringList boxes;
    QString title;

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
            if (answer_ == QMessageBox::No || box->buttons().size() == 1) {
                QTest::keyClick(box, Qt::Key_Return);
            } else {
                box->button(answer_)->click();
            }
        } else if (name_.isEmpty()) {
            title = front->windowTitle();
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

}  // namespace kestrel::test
