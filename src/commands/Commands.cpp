#include "commands/Commands.h"

#include <algorithm>

namespace kestrel::commands {

namespace {

bool IsEnabled(const CommandRow& row, Commands& commands) {
    return row.run != kNotBuilt && row.enabled(commands);
}

// Rows without a question of their own never change.
void Refresh(controls::SmartMenuXP& menu, std::span<const CommandRow> rows, Commands& commands) {
    for (const CommandRow& row : rows) {
        if (row.enabled != Always) menu.SetEnabled(row.key, IsEnabled(row, commands));
        if (row.checked != Never) menu.SetChecked(row.key, row.checked(commands));
    }
}

}  // namespace

Commands::Commands(editing::Editor& openEditor, const MainParts& mainParts,
                   const MainServices& services)
    : editor(openEditor),
      parts(mainParts),
      boxes(services.boxes),
      cdb(services.dialogs, parts.owner),
      palette(editor.ColorPalette(), {editor.Wells(), cdb, services.dialogs, parts.owner, boxes,
                                      services.files, services.random}),
      wells(editor.Wells(), services.application, cdb),
      clipboard(editor, services.clipboard, parts.dialogs),
      images(editor, parts.dialogs, services.application, services.random),
      recent(parts.menus.SmartMenuXP1, services.registry, services.files, boxes, services.documents,
             services.systemLcid),
      documents(editor, {parts.grid, recent, cdb, services.application, boxes, services.files}),
      extract(editor, {services.application, services.dialogs, services.boxes, services.files},
              {documents, parts.dialogs, services.folders}),
      prints(editor, {services.application, boxes, services.printer, services.files, cdb,
                      parts.dialogs, services.folders}),
      capture(editor, {parts.window, parts.dialogs, services.screen, services.application, boxes,
                       parts.magnifier}),
      shell({services.application, boxes, services.help, services.files, services.shell,
             services.registry},
            services.folders, parts.dialogs),
      zoom(services.screen, boxes, parts.magnifier),
      language(parts, services.settings, shell),
      recovery(editor, services.log, services.journals, boxes),
      tray(parts, services.tray, services.files, boxes, services.folders) {}

void Commands::Click(std::span<const CommandRow> rows, std::string_view key) {
    const auto row = std::ranges::find(rows, key, &CommandRow::key);
    if (row != rows.end() && row->run != kNotBuilt) row->run(*this, key);
}

void Commands::RefreshStates() {
    Refresh(parts.menus.SmartMenuXP1, MenuBarRows(), *this);
    Refresh(parts.menus.SmartMenuXP2, PopupRows(), *this);
    for (const CommandRow& row : ToolbarRows()) {
        if (row.enabled != Always) parts.controls.EnableButton(row.key, IsEnabled(row, *this));
    }
}

}  // namespace kestrel::commands
