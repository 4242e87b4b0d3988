#include "commands/LanguageCommands.h"

#include "i18n/Language.h"

namespace kestrel::commands {

void LanguageCommands::SwitchTo(std::string_view code) {
    ApplyMainCaptions(code, parts_.controls);
    ApplyMenuCaptions(code, parts_.menus);
    i18n::SetUiLanguage(code);
    settings::SaveLanguage(settings_, code);
    shell_.FollowLanguage();
    parts_.window.LanguageChanged();
}

}  // namespace kestrel::commands
