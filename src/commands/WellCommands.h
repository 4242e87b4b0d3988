#pragma once

#include "editing/ColorWells.h"
#include "services/Application.h"
#include "services/Cdb.h"

namespace kestrel::commands {

// What the mouse buttons do on the colour wells and the buttons beside them, when they come up.
// Button::None stands for every button that does not draw.
class WellCommands {
  public:
    WellCommands(editing::ColorWells& wells, services::Application& application, services::Cdb& cdb)
        : wells_(wells), application_(application), cdb_(cdb) {}

    // Left: black and white, neither transparent.
    void ImgDefaultColor_MouseUp(editing::Button button);
    // Left exchanges the wells, any other button only which one is transparent.
    void ImgInterchangeColor_MouseUp(editing::Button button);
    // Makes the well of the button transparent.
    void ImgTransparent_MouseUp(editing::Button button);
    // Left: the user chooses the well's colour. Also when that is cancelled, the well is not
    // transparent any more.
    void PicForeColor_MouseUp(editing::Button button);
    void PicBackColor_MouseUp(editing::Button button);

  private:
    void ChooseColor(editing::Button well);

    editing::ColorWells& wells_;
    services::Application& application_;
    services::Cdb& cdb_;
};

}  // namespace kestrel::commands
