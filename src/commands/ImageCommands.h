#pragma once

#include <optional>
#include <string_view>

#include "commands/Dialogs.h"
#include "editing/Editor.h"
#include "imaging/Operations.h"

namespace kestrel::commands {

// The commands of the Image and Effect menus, and the gradient of the Tools menu.
class ImageCommands {
  public:
    ImageCommands(editing::Editor& editor, Dialogs& dialogs, services::MessageLoop& loop,
                  system::RandomNumbers& random)
        : editor_(editor), dialogs_(dialogs), filters_(loop, random) {}

    // Runs the operation with this key on the selection or the whole icon; without one nothing
    // happens.
    void Operate(std::string_view key);
    void AdjustColors();
    // Lets the user choose a gradient in place of the icon.
    void GradientBackground();

    // Halves can be reflected onto each other where the side has an even number of pixels.
    bool CanMirrorColumns() const { return Target().width % 2 == 0; }
    bool CanMirrorRows() const { return Target().height % 2 == 0; }

  private:
    // What an operation would change.
    gdi::Rect Target() const;
    // None where the user does not want the operation.
    std::optional<int> ValueOf(const imaging::Operation& operation);
    editing::Leaves Prepare(imaging::OnSelection rule);

    editing::Editor& editor_;
    Dialogs& dialogs_;
    filters::mFilterG filters_;
};

}  // namespace kestrel::commands
