#include "desktop/HelpWindow.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QShortcut>
#include <utility>

#include "desktop/Text.h"
#include "i18n/Messages.h"

namespace kestrel::desktop {

HelpWindow::HelpWindow() {
    auto* layout = new QHBoxLayout(&bar_);
    layout->addWidget(&field_);
    layout->addWidget(&notFound_);
    field_.setClearButtonEnabled(true);
    notFound_.hide();
    ShowTexts();
    setViewportMargins(0, bar_.sizeHint().height(), 0, 0);
    // What is found is seen while the field has the keyboard.
    QPalette colors = palette();
    for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText})
        colors.setColor(QPalette::Inactive, role, colors.color(QPalette::Active, role));
    setPalette(colors);

    connect(&field_, &QLineEdit::textEdited, this, [this] { FindFromHere(); });
    AddKey(QKeySequence::Find, [this] {
        field_.setFocus();
        field_.selectAll();
    });
    AddKey(Qt::Key_F3, [this] { Find({}); });
    AddKey(Qt::SHIFT | Qt::Key_F3, [this] { Find(QTextDocument::FindBackward); });
    // In the page Return follows a link.
    connect(&field_, &QLineEdit::returnPressed, this, [this] {
        const bool back = QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
        Find(back ? QTextDocument::FindBackward : QTextDocument::FindFlag());
    });
}

void HelpWindow::ShowTexts() {
    field_.setPlaceholderText(ToText(i18n::kSearchHelp.Now()));
    field_.setAccessibleName(ToText(i18n::kSearchHelp.Now()));
    notFound_.setText(ToText(i18n::kNotFound.Now()));
}

void HelpWindow::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    const QRect page = viewport()->geometry();
    const int height = bar_.sizeHint().height();
    bar_.setGeometry(page.x(), page.y() - height, page.width(), height);
}

void HelpWindow::AddKey(const QKeySequence& key, std::function<void()> then) {
    connect(new QShortcut(key, this), &QShortcut::activated, this, std::move(then));
}

void HelpWindow::FindFromHere() {
    QTextCursor cursor = textCursor();
    cursor.setPosition(cursor.selectionStart());
    setTextCursor(cursor);
    Find({});
}

void HelpWindow::Find(QTextDocument::FindFlags direction) {
    const QString text = field_.text();
    bool found = text.isEmpty() || find(text, direction);
    if (!found) {
        const QTextCursor before = textCursor();
        moveCursor(direction ? QTextCursor::End : QTextCursor::Start);
        found = find(text, direction);
        if (!found) setTextCursor(before);
    }
    notFound_.setVisible(!found);
}

}  // namespace kestrel::desktop
