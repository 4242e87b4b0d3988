#pragma once

#include "editing/ClickTool.h"

namespace kestrel::editing {

// Gives the button's well the colour, or the transparency, of the pixel under the pointer.
class ColorPicker : public ClickTool {
  public:
    explicit ColorPicker(const ToolParts& parts)
        : document_(parts.edit.document), wells_(parts.wells), application_(parts.application) {}

    Outcome Release(Button button, int x, int y) override;

  private:
    const document::IconDocument& document_;
    ColorWells& wells_;
    services::Application& application_;
};

}  // namespace kestrel::editing
