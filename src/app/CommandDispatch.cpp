#include "app/CommandDispatch.h"

namespace kestrel::app {

CommandDispatch::CommandDispatch(DocumentCommands& commands, editing::EditorWindow& window)
    : handlers_{
          {"mnuNew", [&commands] { commands.mnuNew_Click(); }},
          {"mnuOpen", [&commands] { commands.mnuOpen_Click(); }},
          {"mnuSave", [&commands] { commands.mnuSave_Click(); }},
          {"mnuSaveAs", [&commands] { commands.mnuSaveAs_Click(); }},
          {"mnuExit", [&commands] { commands.mnuExit_Click(); }},
      },
      window_(window) {}

void CommandDispatch::SmartMenuXP1_Click(std::string_view key) {
    if (const auto handler = handlers_.find(key); handler != handlers_.end()) handler->second();
    window_.RefreshEditCommands();
}

}  // namespace kestrel::app
