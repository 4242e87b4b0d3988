#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>

#include "commands/ModLanguage.h"
#include "commands/ToolbarTable.h"
#include "desktop/Text.h"
#include "i18n/Language.h"
#include "windows/FrmIcoEd.h"

namespace kestrel::windows {

namespace {

using desktop::ToText;

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
        RunCommand([&] { dispatch_.SmartMenuXP1_Click(key); });
    };
    popup.onClick = [this](std::string_view key) {
        RunCommand([&] { dispatch_.SmartMenuXP2_Click(key); });
    };
    barView_.FillBar(*menuBar_);
}

void FrmIcoEd::BuildToolbar() {
    for (const commands::ToolbarButton& button : commands::ToolbarButtons())
        toolbar1_->AddButton(button.key, button.picture);
    toolbar1_->onClick = [this](std::string_view key) {
        RunCommand([&] { dispatch_.Toolbar1_ButtonClick(key); });
    };
    toolbar1_->onMouseMove = [this](int x) { Toolbar1_MouseMove(x); };
    toolbar1_->onLeave = [this] { SetStatusPanel(editing::StatusPanel::Hint, {}); };
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
    SetStatusPanel(editing::StatusPanel::Hint, buttons[index].status.Now());
}

QMenu* FrmIcoEd::EditingPopup() {
    return popupView_.Popup(kPopupRoot);
}

void FrmIcoEd::ShowEditingPopup() {
    EditingPopup()->popup(QCursor::pos());
}

void FrmIcoEd::ShowEditingPopupByKey() {
    // The button that drags would choose an item where it comes up.
    if (QGuiApplication::mouseButtons() != Qt::NoButton) return;
    const bool overGrid = picMain_->underMouse();
    EditingPopup()->popup(overGrid ? QCursor::pos()
                                   : picMain_->mapToGlobal(picMain_->rect().center()));
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
        RunCommand([this] { dispatch_.SmartMenuXP1_Click("mnuHelp2"); });
    } else if (event->key() == Qt::Key_Escape) {
        // From the toolbar back to the window, from there out of the selection.
        if (hasFocus()) RunCommand([this] { editor_.Selected().DropSelection(); });
        setFocus();
    } else if (!MoveSelectionByKey(*event)) {
        QWidget::keyPressEvent(event);
    }
}

void FrmIcoEd::SetControlCaption(std::string_view control, std::string_view text) {
    if (auto* widget = findChild<QWidget*>(ToText(control)); widget != nullptr) {
        // The place of the icon's format is narrow: its size stands above its depth.
        widget->setProperty(
            "text", ToText(text).replace(QLatin1String("32 * 32 "), QLatin1String("32 * 32\n")));
    }
}

void FrmIcoEd::SetControlToolTip(std::string_view control, std::string_view text) {
    if (auto* widget = findChild<QWidget*>(ToText(control)); widget != nullptr) {
        widget->setToolTip(ToText(text));
    }
}

void FrmIcoEd::SetButtonToolTip(std::string_view key, std::string_view text) {
    toolbar1_->SetToolTip(key, text);
}

void FrmIcoEd::EnableButton(std::string_view key, bool enabled) {
    toolbar1_->SetEnabled(key, enabled);
}

void FrmIcoEd::RefreshEditCommands() {
    commands_.mnuEdit_Click();
    using editing::PaletteKind;
    const PaletteKind kind = editor_.ColorPalette().Kind();
    menus_.SmartMenuXP1.SetChecked("mnuPaletteOpts0", kind == PaletteKind::Default);
    menus_.SmartMenuXP1.SetChecked("mnuPaletteOpts1", kind == PaletteKind::Random);
}

}  // namespace kestrel::windows
