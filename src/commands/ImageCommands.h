#pragma once

#include "commands/ImageTarget.h"
#include "commands/ImagingDialogs.h"
#include "services/MessageLoop.h"

namespace kestrel::commands {

// The commands of the Image menu that change colours, and the gradient of the Tools menu.
class ImageCommands {
  public:
    ImageCommands(editing::Editor& editor, ImagingDialogs& dialogs, services::MessageLoop& loop)
        : editor_(editor), target_(editor), dialogs_(dialogs), loop_(loop) {}

    void AdjustColors();
    void Buttonize();
    void Grayscale();
    void Invert();
    // Lets the user choose a gradient in place of the icon.
    void GradientBackground();

  private:
    // Recolours the selection, or the icon with an entry of the history.
    template <typename Recolor>
    void Change(const Recolor& recolor);

    editing::Editor& editor_;
    ImageTarget target_;
    ImagingDialogs& dialogs_;
    services::MessageLoop& loop_;
};

}  // namespace kestrel::commands
