#pragma once

#include <string_view>

#include "platform/controls/SmartMenuXP.h"

namespace kestrel::commands {

// The main window's menus: the bar and the editing pop-up.
struct MainMenus {
    controls::SmartMenuXP SmartMenuXP1;
    controls::SmartMenuXP SmartMenuXP2;
};

// A window whose controls get their texts by name. A name it does not have changes nothing.
class CaptionedWindow {
  public:
    virtual ~CaptionedWindow() = default;
    virtual void SetControlCaption(std::string_view control, std::string_view text) = 0;
    virtual void SetControlToolTip(std::string_view control, std::string_view text) = 0;
    // What screen readers call a control that shows no text of its own.
    virtual void SetControlName(std::string_view control, std::string_view text) = 0;
    // A button of the toolbar, by its key.
    virtual void SetButtonToolTip(std::string_view key, std::string_view text) = 0;
};

// All texts are put in place for one language code; any other code changes nothing.

// The texts of the main window's controls and of its toolbar.
void ApplyMainCaptions(std::string_view code, CaptionedWindow& window);

// Fills the menu bar and the editing pop-up, once: structure, pictures, shortcuts, English
// captions.
void BuildMenuBar(MainMenus& menus);

// The captions of both menus. Separators have none; recent files keep theirs.
void ApplyMenuCaptions(std::string_view code, MainMenus& menus);

}  // namespace kestrel::commands
