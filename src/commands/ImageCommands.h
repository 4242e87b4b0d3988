#pragma once

#include "commands/Dialogs.h"
#include "commands/ImageTarget.h"
#include "services/MessageLoop.h"

namespace kestrel::commands {

// The commands of the Image menu that change colours, and the gradient of the Tools menu.
class ImageCommands {
  public:
    ImageCommands(editing::Editor& editor, Dialogs& dialogs, services::MessageLoop& loop)
        : editor_(editor), target_(editor), dialogs_(dialogs), loop_(loop) {}

    // 0 to 3: colour adjustment, Buttonize, Grayscale, Invert; others are none.
    void mnuImageOpts_Click(int index);
    // Lets the user choose a gradient in place of the icon.
    void GradientBackground();

  private:
    void AdjustColors();
    void MakeButton();
    // Recolours the selection, or the icon with an entry of the history.
    template <typename Recolor>
    void Change(const Recolor& recolor);

    editing::Editor& editor_;
    ImageTarget target_;
    Dialogs& dialogs_;
    services::MessageLoop& loop_;
};

}  // namespace kestrel::commands
