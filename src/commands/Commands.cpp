#include "commands/Commands.h"

#include <algorithm>

namespace kestrel::commands {

namespace {

bool IsEnabled(const CommandRow& row, Commands& commands) {
    return row.run != kNotBuilt && row.enabled(commands);
}

// Most rows have the state they began with for ever.
void Refresh(controls::SmartMenuXP& menu, std::span<const CommandRow> rows, Commands& commands) {
    for (const CommandRow& row : rows) {
        if (row.enabled != Always) menu.SetEnabled(row.key, IsEnabled(row, commands));
        if (row.checked != Never) menu.SetChecked(row.key, row.checked(commands));
    }
}

}  // namespace

Commands::Commands(editing::Editor& openEditor, MainWindow& mainWindow, MainMenus& mainMenus,
                   services::Cdb& cdb, ImagingDialogs& imagingDialogs, const MainServices& services)
    : editor(openEditor),
      window(mainWindow),
      menus(mainMenus),
      boxes(services.boxes),
      palette(editor.ColorPalette(), {editor.Wells(), cdb, services.dialogs, window, boxes,
                                      services.files, services.random}),
      clipboard(editor, services.clipboard, window),
      images(editor, imagingDialogs, window, services.random),
      recent(menus.SmartMenuXP1, services.registry, services.files, boxes, services.systemLcid),
      documents(editor, window, recent, cdb, boxes, services.files),
      shell(window, {boxes, services.help, services.files, services.shell}, services.folders),
      language(window, menus, services.settings, shell) {}

void Commands::Click(std::span<const CommandRow> rows, std::string_view key) {
    const auto row = std::ranges::find(rows, key, &CommandRow::key);
    if (row != rows.end() && row->run != kNotBuilt) row->run(*this, key);
    RefreshStates();
}

void Commands::RefreshStates() {
    Refresh(menus.SmartMenuXP1, MenuBarRows(), *this);
    Refresh(menus.SmartMenuXP2, PopupRows(), *this);
    for (const CommandRow& row : ToolbarRows()) {
        if (row.enabled != Always) window.EnableButton(row.key, IsEnabled(row, *this));
    }
}

}  // namespace kestrel::commands
