#pragma once

#include <functional>

#include "editing/Editor.h"
#include "windows/GridPane.h"

namespace kestrel::windows {

// Runs the user's commands, one at a time: while one waits for a dialog no other begins.
class CommandRunner {
  public:
    CommandRunner(editing::Editor& editor, GridPane& grid, editing::EditorWindow& window)
        : editor_(editor), grid_(grid), window_(window) {}

    bool IsRunning() const { return running_; }
    // Ends the gesture under way before, and afterwards shows what the command may have changed.
    void Run(const std::function<void()>& command);

  private:
    editing::Editor& editor_;
    GridPane& grid_;
    editing::EditorWindow& window_;
    bool running_ = false;
};

}  // namespace kestrel::windows
