#include "commands/ZoomCommands.h"

#include "commands/ErrorBox.h"

namespace kestrel::commands {

void ZoomCommands::ShowMagnifier() {
    if (screen_.IsSeen()) return magnifier_.ShowMagnifier();
    ShowError(boxes_, std::string(i18n::kCannotMagnify.Now()));
}

}  // namespace kestrel::commands
