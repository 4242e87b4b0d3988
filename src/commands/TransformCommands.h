#pragma once

#include "commands/ImageTarget.h"
#include "imaging/Transforms.h"

namespace kestrel::commands {

// The mirror, rotate and flip commands of the Image menu, on the selection or the whole icon.
class TransformCommands {
  public:
    explicit TransformCommands(editing::Editor& editor) : editor_(editor), target_(editor) {}

    void Mirror(imaging::Reflection reflection);
    void Rotate(imaging::Turn turn);
    void Flip(imaging::FlipAxis axis);

    // Halves can be reflected onto each other where the side has an even number of pixels.
    bool CanMirrorColumns() const { return target_.Mask().Width() % 2 == 0; }
    bool CanMirrorRows() const { return target_.Mask().Height() % 2 == 0; }

  private:
    editing::Editor& editor_;
    ImageTarget target_;
};

}  // namespace kestrel::commands
