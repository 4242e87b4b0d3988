#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>

#include "commands/ModLanguage.h"
#include "commands/ToolbarTable.h"
#include "i18n/Language.h"
#include "windows/FrmIcoEd.h"

namespace kestrel::windows {

namespace {

constexpr std::string_view kPopupRoot = "mnuEdit";

void DisableMissing(std::span<const commands::CommandRow> commands, controls::SmartMenuXP& menu) {
    for (const commands::CommandRow& command : commands) {
        if (command.run == nullptr) menu.SetEnabled(command.key, false);
    }
}

}  // namespace

void FrmIcoEd::BuildMenus() {
    auto& [bar, popup] = menus_;
    commands::BuildMenuBar(bar, popup);
    commands::ApplyMenuCaptions(i18n::UiLanguage(), bar, popup);
    bar.onClick = [this](std::string_view key) {
        runner_.Run([&] { dispatch_.SmartMenuXP1_Click(key); });
    };
    popup.onClick = [this](std::string_view key) {
        runner_.Run([&] { dispatch_.SmartMenuXP2_Click(key); });
    };
    barView_.FillBar(*menuBar_);
}

void FrmIcoEd::BuildToolbar() {
    for (const commands::ToolbarButton& button : commands::ToolbarButtons())
        toolbar1_->AddButton(button.key, button.picture);
    toolbar1_->onClick = [this](std::string_view key) {
        runner_.Run([&] { dispatch_.Toolbar1_ButtonClick(key); });
    };
    toolbar1_->onMouseMove = [this](int x) { Toolbar1_MouseMove(x); };
    toolbar1_->onLeave = [this] { statusBar_.SetStatusPanel(editing::StatusPanel::Hint, {}); };
}

void FrmIcoEd::DisableMissingCommands() {
    DisableMissing(commands::MenuBarCommands(), menus_.SmartMenuXP1);
    DisableMissing(commands::PopupCommands(), menus_.SmartMenuXP2);
    for (const commands::CommandRow& command : commands::ToolbarCommands())
        toolbar1_->SetEnabled(command.key, command.run != nullptr);
}

void FrmIcoEd::Toolbar1_MouseMove(int x) {
    const auto buttons = commands::ToolbarButtons();
    const auto index = static_cast<std::size_t>(x / toolbar1_->ButtonWidth()) % buttons.size();
    statusBar_.SetStatusPanel(editing::StatusPanel::Hint, buttons[index].status.Now());
}

QMenu* FrmIcoEd::EditingPopup() {
    return popupView_.Popup(kPopupRoot);
}

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
        runner_.Run([this] { dispatch_.SmartMenuXP1_Click("mnuHelp2"); });
    } else if (event->key() == Qt::Key_Escape) {
        // From the toolbar back to the window, from there out of the selection.
        if (hasFocus()) runner_.Run([this] { editor_.Selected().DropSelection(); });
        setFocus();
    } else if (!MoveSelectionByKey(*event)) {
        QWidget::keyPressEvent(event);
    }
}

void FrmIcoEd::RefreshEditCommands() {
    commands_.mnuEdit_Click();
    using editing::PaletteKind;
    const PaletteKind kind = editor_.ColorPalette().Kind();
    menus_.SmartMenuXP1.SetChecked("mnuPaletteOpts0", kind == PaletteKind::Default);
    menus_.SmartMenuXP1.SetChecked("mnuPaletteOpts1", kind == PaletteKind::Random);
}

}  // namespace kestrel::windows
