#pragma once

#include <cstdint>
#include <deque>

#include "editing/PackedPicture.h"

namespace kestrel::editing {

// What can happen to a history. Recorded, Back and Forward come with what they change in the
// picture; RedoHeld brings a step forward that is nearer than those before. The numbers are those
// of the journal.
enum class HistoryAct : std::uint8_t {
    Cleared = 1,
    RedoCleared = 2,
    Recorded = 3,
    Back = 4,
    Forward = 5,
    RedoHeld = 6
};
constexpr bool IsHistoryAct(int number) {
    return number >= 1 && number <= static_cast<int>(HistoryAct::RedoHeld);
}

// Whether the planes are to be the present picture afterwards.
constexpr bool SetsPlanes(HistoryAct act) {
    return act == HistoryAct::Recorded || act == HistoryAct::Back || act == HistoryAct::Forward;
}

// The pictures of a history, oldest first, and which of them is the present one. Only that one is
// kept whole; of the others, what differs from the entry beside them.
class PictureHistory {
  public:
    using Steps = std::deque<PictureDifference>;

    // The empty icon while there is no entry.
    const PackedPicture& Present() const { return present_; }
    bool IsEmpty() const { return !begun_; }
    // What leads away from the present picture, the nearest at the end.
    const Steps& UndoSteps() const { return undo_; }
    const Steps& RedoSteps() const { return redo_; }

    // The change that Recorded brings is that of the present picture; for the first entry that of
    // the empty icon. The one of Back and Forward counts where there is no such step to go.
    void Do(HistoryAct act, PictureDifference change);

  private:
    void Go(Steps& from, Steps& to, PictureDifference change);

    PackedPicture present_ = EmptyPicture();
    bool begun_ = false;
    Steps undo_;
    Steps redo_;
};

}  // namespace kestrel::editing
