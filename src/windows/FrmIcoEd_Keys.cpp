#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QShortcut>

#include "commands/CommandTable.h"
#include "commands/KeyTable.h"
#include "windows/FrmIcoEd.h"
#include "windows/widgets/ArrowStep.h"

namespace kestrel::windows {

// A shortcut finds its letter also on a keyboard with others, by the place of the key.
void FrmIcoEd::BuildKeys() {
    for (const commands::KeyRow& row : commands::KeyRows()) {
        const QKeyCombination keys(row.shift ? Qt::ShiftModifier : Qt::NoModifier,
                                   static_cast<Qt::Key>(row.letter));
        auto* shortcut = new QShortcut(keys, this);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, this, [this, &row] {
            // What is dragged keeps its tool and its colour.
            if (QGuiApplication::mouseButtons() != Qt::NoButton || editor_.IsInGesture()) return;
            runner_.Run([&] { row.run(commands_, {}); });
            grid_.Say(row.told(commands_));
        });
    }
    // The grid is where the keyboard is at home, and from there Tab goes on as one reads.
    setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(&grid_.PicMain());
    setFocus();
    QWidget* last = &grid_.PicMain();
    const auto then = [&last](QWidget& next) {
        setTabOrder(last, &next);
        last = &next;
    };
    then(tools_.PicTools());
    for (QWidget* box : colors_.Boxes())
        then(*box);
    then(colors_.PicPal());
    then(colors_.ChkPal());
    for (const commands::CommandRow& button : commands::ToolbarRows())
        then(*toolbar1_->Button(button.key));
    // Only now: what Tab does not find has no place in its order.
    colors_.LetTabFind(0);
}

void FrmIcoEd::ShowEditingPopupByKey() {
    // The button that drags would choose an item where it comes up.
    if (QGuiApplication::mouseButtons() != Qt::NoButton) return;
    EditingPopup()->popup(grid_.PopupPoint());
}

void FrmIcoEd::contextMenuEvent(QContextMenuEvent* event) {
    // The right mouse button draws.
    if (event->reason() == QContextMenuEvent::Keyboard) ShowEditingPopupByKey();
}

void FrmIcoEd::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
        ShowEditingPopupByKey();
    } else if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::NoModifier) {
        menuBar_->setActiveAction(menuBar_->actions().constFirst());
    } else if (event->key() == Qt::Key_F1 && event->modifiers() == Qt::NoModifier) {
        RunRow(commands::MenuBarRows(), "mnuHelp2");
    } else if (event->key() == Qt::Key_Escape) {
        // From elsewhere back to the grid, from there out of the selection.
        if (hasFocus()) runner_.Run([this] { editor_.Selected().DropSelection(); });
        setFocus(Qt::ShortcutFocusReason);
    } else if (!MoveSelectionByKey(*event)) {
        QWidget::keyPressEvent(event);
    }
}

// The arrow keys; false for any other key.
bool FrmIcoEd::MoveSelectionByKey(const QKeyEvent& event) {
    const auto step = widgets::ArrowStep(event.key());
    const bool modified = (event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier;
    // On the toolbar they go from button to button.
    if (!step || modified || !hasFocus()) return false;
    runner_.Run([&] { editor_.Selected().MoveBy(step->x(), step->y()); });
    return true;
}

}  // namespace kestrel::windows
