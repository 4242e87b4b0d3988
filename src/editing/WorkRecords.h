#pragma once

#include "editing/PictureHistory.h"
#include "editing/Work.h"
#include "formats/ByteWriter.h"

namespace kestrel::editing {

// What the records of the journal hold: operations that lead from one state of the editor to the
// next, the history's and those of the rest. A number tells which one it is; what it needs follows.
// Integers are little-endian.

// What the history did. After Recorded, Back and Forward its present picture is that of the planes.
void PutAct(formats::ByteWriter& out, HistoryAct act, const PictureDifference& change);
// What leads from one state to the other, once the history is as it is in the other.
void PutChanges(formats::ByteWriter& out, const Work& from, const Work& to);

// A whole state as the records of a journal: what leads to it from a new icon, with the newest
// entries of the history whose changes take up no more than so many bytes.
std::vector<std::uint8_t> WholeJournal(const Work& work, const PictureHistory& history,
                                       std::size_t historyBytes);

// A state, as far as a journal tells it.
struct ReplayedWork {
    Work work;
    PictureHistory history;
};
// Carries out the records of a journal, up to the first that is torn, damaged or makes no sense.
ReplayedWork Replay(formats::Bytes journal);

}  // namespace kestrel::editing
