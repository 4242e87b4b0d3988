#include "editing/WorkLog.h"

#include <utility>

#include "document/JournalRecords.h"
#include "editing/Editor.h"
#include "editing/WorkRecords.h"

namespace kestrel::editing {

namespace {

constexpr std::chrono::seconds kBetweenTries{10};

std::vector<std::uint8_t> Shortened(formats::Bytes journal, std::size_t keep) {
    const ReplayedWork replayed = Replay(journal);
    return WholeJournal(replayed.work, replayed.history, keep);
}

}  // namespace

WorkLog::WorkLog(std::string folder, document::JournalLimits limits)
    : folder_(std::move(folder)), limits_(limits) {}

WorkLog::~WorkLog() {
    if (file_ && !told_.modified) file_->Remove();
}

void WorkLog::Did(HistoryAct act, const PictureDifference& change) {
    if (!Keeps()) return;
    PutAct(record_, act, change);
    planesFollowHistory_ = planesFollowHistory_ || SetsPlanes(act);
}

void WorkLog::HistoryReplaced() {
    isBehind_ = true;
    nextTry_ = {};
}

void WorkLog::StepEnded(const Editor& editor) {
    Work now = editor.CurrentWork();
    if (Keeps()) {
        if (std::exchange(planesFollowHistory_, false))
            told_.planes = editor.History().Pictures().Present();
        PutChanges(record_, told_, now);
        std::vector<std::uint8_t> journal;
        document::PutRecord(journal, record_.Take());
        isBehind_ = !journal.empty() && !file_->Append(journal);
    }
    told_ = std::move(now);
    if (Keeps()) return;
    if (told_.modified) {
        BeginAnew(editor.History().Pictures());
    } else if (file_) {
        // It would offer what has been saved since.
        std::exchange(file_, nullptr)->Remove();
    }
}

// With the whole state. The journal before stays where that fails.
void WorkLog::BeginAnew(const PictureHistory& pictures) {
    const auto now = std::chrono::steady_clock::now();
    if (now < nextTry_) return;
    nextTry_ = now + kBetweenTries;
    auto file = document::JournalFile::Create(folder_, limits_, Shortened);
    if (!file) return;
    if (!file->Append(WholeJournal(told_, pictures, limits_.keep))) return file->Remove();
    if (file_) file_->Remove();
    file_ = std::move(file);
    record_ = {};
    isBehind_ = planesFollowHistory_ = false;
}

}  // namespace kestrel::editing
