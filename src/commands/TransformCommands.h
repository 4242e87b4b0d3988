#pragma once

#include "commands/ImageTarget.h"
#include "imaging/Transforms.h"

namespace kestrel::commands {

// The mirror, rotate and flip commands of the Image menu, on the selection or the whole icon.
class TransformCommands {
  public:
    explicit TransformCommands(editing::Editor& editor) : editor_(editor), target_(editor) {}

    // 0 to 3 in the order of the menu; others are none.
    void mnuMirrorOpts_Click(int index);
    // 0 and 1 rotate left and right, 3 and 4 flip horizontally and vertically; others are none.
    void mnuRotateOpts_Click(int index);

    // Halves can be reflected onto each other where the side has an even number of pixels.
    bool CanMirrorColumns() const { return target_.Mask().Width() % 2 == 0; }
    bool CanMirrorRows() const { return target_.Mask().Height() % 2 == 0; }

  private:
    void Rotate(imaging::Turn turn);
    void FlipPlanes(imaging::FlipAxis axis);

    editing::Editor& editor_;
    ImageTarget target_;
};

}  // namespace kestrel::commands
