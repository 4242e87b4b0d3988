#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>

#include "commands/CommandTable.h"
#include "windows/FrmIcoEd.h"
#include "windows/widgets/ArrowStep.h"

namespace kestrel::windows {

void FrmIcoEd::ShowEditingPopupByKey() {
    // The button that drags would choose an item where it comes up.
    if (QGuiApplication::mouseButtons() != Qt::NoButton) return;
    const bool overGrid = grid_.PicMain().underMouse();
    EditingPopup()->popup(overGrid ? QCursor::pos() : grid_.mapToGlobal(grid_.rect().center()));
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
        // From the toolbar back to the window, from there out of the selection.
        if (hasFocus()) runner_.Run([this] { editor_.Selected().DropSelection(); });
        setFocus();
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
