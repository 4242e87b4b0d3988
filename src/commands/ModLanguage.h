#pragma once

#include <string_view>

#include "platform/controls/SmartMenuXP.h"

namespace kestrel::commands {

// A window whose controls get their texts by name. A name it does not have changes nothing.
class CaptionedWindow {
  public:
    virtual ~CaptionedWindow() = default;
    virtual void SetControlCaption(std::string_view control, std::string_view text) = 0;
    virtual void SetControlToolTip(std::string_view control, std::string_view text) = 0;
    // A button of the toolbar, by its key.
    virtual void SetButtonToolTip(std::string_view key, std::string_view text) = 0;
};

// All texts are put in place for one language code; any other code changes nothing.

// The texts of the main window's controls and of its toolbar.
void ApplyMainCaptions(std::string_view code, CaptionedWindow& window);

// Fills the menu bar and the editing pop-up, once: structure, pictures, shortcuts, states, English
// captions.
void BuildMenuBar(controls::SmartMenuXP& bar, controls::SmartMenuXP& popup);

// The captions of both menus, and the mark of the language in the View menu. Separators have no
// caption; recent files keep theirs.
void ApplyMenuCaptions(std::string_view code, controls::SmartMenuXP& bar,
                       controls::SmartMenuXP& popup);

}  // namespace kestrel::commands
