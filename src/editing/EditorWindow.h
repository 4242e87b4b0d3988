#pragma once

#include <string>

namespace kestrel::editing {

// The window around the editor.
class EditorWindow {
  public:
    virtual ~EditorWindow() = default;
    virtual void SetTitle(const std::string& title) = 0;
    // The enabled state of the Edit commands may have changed.
    virtual void RefreshEditCommands() = 0;
};

}  // namespace kestrel::editing
