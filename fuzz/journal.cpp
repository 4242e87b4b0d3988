#include <algorithm>
#include <cstdint>
#include <numeric>
#include <span>
#include <utility>

#include "document/JournalRecords.h"
#include "editing/Editor.h"
#include "editing/WorkRecords.h"
#include "tests/support/EditorRecorder.h"

using namespace kestrel;

namespace {

// The records, each of at most 1020 bytes after a byte that tells its length.
std::vector<std::uint8_t> JournalOf(std::span<const std::uint8_t> rest) {
    std::vector<std::uint8_t> journal = document::EmptyJournal();
    while (!rest.empty()) {
        const std::size_t length = std::min<std::size_t>(rest.size() - 1, rest.front() * 4U);
        document::PutRecord(journal, rest.subspan(1, length));
        rest = rest.subspan(1 + length);
    }
    return journal;
}

}  // namespace

// Whatever the records of a journal hold, they are replayed, soon and without a fault, into what a
// journal tells again and an editor can be; that one takes its time, so it is tried seldom.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static_cast<void>(editing::Replay({data, size}));
    editing::ReplayedWork replayed = editing::Replay(JournalOf({data, size}));
    const auto whole = editing::WholeJournal(replayed.work, replayed.history, SIZE_MAX);
    if (!(editing::Replay(whole).work == replayed.work)) std::abort();
    if (std::accumulate(data, data + size, 0U) % 128 != 77) return 0;
    static test::EditorRecorder views;
    static editing::Editor editor(views.Views(), 0);
    views.repainted.clear();
    editor.Restore(replayed.work, std::move(replayed.history));
    editor.PopUndoSnapshot();
    editor.PopRedoSnapshot();
    return 0;
}
