#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>

#include "commands/CommandTable.h"
#include "commands/ModLanguage.h"
#include "desktop/Text.h"
#include "i18n/Language.h"
#include "windows/FrmIcoEd.h"

namespace kestrel::windows {

namespace {

using desktop::ToText;

constexpr std::string_view kPopupRoot = "mnuEdit";

}  // namespace

void FrmIcoEd::BuildMenus() {
    commands::BuildMenuBar(menus_);
    commands::ApplyMenuCaptions(i18n::UiLanguage(), menus_);
    menus_.SmartMenuXP1.onClick = [this](std::string_view key) {
        RunRow(commands::MenuBarRows(), key);
    };
    menus_.SmartMenuXP2.onClick = [this](std::string_view key) {
        RunRow(commands::PopupRows(), key);
    };
    barView_.FillBar(*menuBar_);
}

void FrmIcoEd::BuildToolbar() {
    for (const commands::CommandRow& button : commands::ToolbarRows()) {
        toolbar1_->AddButton(button.key, button.picture);
        toolbar1_->SetEnabled(button.key, button.run != commands::kNotBuilt);
    }
    toolbar1_->onClick = [this](std::string_view key) { RunRow(commands::ToolbarRows(), key); };
    toolbar1_->onMouseMove = [this](int x) { Toolbar1_MouseMove(x); };
    toolbar1_->onLeave = [this] { SetStatusPanel(editing::StatusPanel::Hint, {}); };
}

void FrmIcoEd::RunRow(std::span<const commands::CommandRow> rows, std::string_view key) {
    RunCommand([&] { commands_.Click(rows, key); });
}

void FrmIcoEd::Toolbar1_MouseMove(int x) {
    const auto buttons = commands::ToolbarRows();
    const auto index = static_cast<std::size_t>(x / toolbar1_->ButtonWidth()) % buttons.size();
    SetStatusPanel(editing::StatusPanel::Hint, buttons[index].hint.Now());
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
        RunRow(commands::MenuBarRows(), "mnuHelp2");
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
    commands_.RefreshStates();
}

}  // namespace kestrel::windows
