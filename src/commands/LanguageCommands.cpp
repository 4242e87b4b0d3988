#include "commands/LanguageCommands.h"

#include "i18n/Language.h"

namespace kestrel::commands {

void LanguageCommands::SwitchTo(std::string_view code) {
    ApplyMainCaptions(code, window_);
    ApplyMenuCaptions(code, menus_);
    i18n::SetUiLanguage(code);
    settings::SaveLanguage(settings_, code);
    shell_.FollowLanguage();
    window_.LanguageChanged();
}

}  // namespace kestrel::commands
