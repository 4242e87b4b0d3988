#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "document/JournalFile.h"
#include "editing/EditingLog.h"
#include "editing/Work.h"
#include "formats/ByteWriter.h"

namespace kestrel::editing {

// Keeps what is done in the editor in a journal, out of which a later run can bring it back. There
// is one from the first change that is not saved on. Where none can be kept, nobody notices.
class WorkLog : public EditingLog {
  public:
    // The folder of the journals; empty: nothing is kept.
    explicit WorkLog(std::string folder, document::JournalLimits limits = {});
    WorkLog(const WorkLog&) = delete;
    WorkLog& operator=(const WorkLog&) = delete;
    // The program ends in order: a journal without unsaved work goes.
    ~WorkLog() override;

    void Did(HistoryAct act, const PictureDifference& change) override;
    void HistoryReplaced() override;
    void StepEnded(const Editor& editor) override;
    bool Keeps() const override { return file_ && !isBehind_; }

  private:
    void BeginAnew(const PictureHistory& pictures);

    const std::string folder_;
    const document::JournalLimits limits_;
    std::unique_ptr<document::JournalFile> file_;
    // The file no longer tells all, since it could not be written or the history is another one.
    bool isBehind_ = false;
    // After a failure to begin there is none before.
    std::chrono::steady_clock::time_point nextTry_;

    // The state that the journal tells, and the record of what has become of it since.
    Work told_;
    formats::ByteWriter record_;
    bool planesFollowHistory_ = false;
};

}  // namespace kestrel::editing
