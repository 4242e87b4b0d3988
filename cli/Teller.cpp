#include "cli/Teller.h"

#include <utility>

#include "cli/IconOutput.h"
#include "cli/Report.h"
#include "cli/Streams.h"

namespace kestrel::cli {

Result<void> Teller::Tell(std::vector<Report> reports) {
    for (Report& report : reports) {
        if (waiting_.empty() && report.replacements.empty()) {
            TellOne(report);
            continue;
        }
        replacements_ += report.replacements.size();
        waiting_.push_back(std::move(report));
        if (replacements_ >= kMostWaiting || waiting_.size() >= kMostReports) PlaceWaiting();
    }
    WriteOutput();
    progress_.Show(totals_);
    return written_;
}

Result<void> Teller::Finish() {
    PlaceWaiting();
    // The names of the last ones.
    flush_.Flush();
    WriteOutput();
    progress_.Clear();
    return written_;
}

void Teller::PlaceWaiting() {
    if (waiting_.empty()) return;
    PlaceReplacements(waiting_, flush_);
    for (const Report& report : waiting_)
        TellOne(report);
    waiting_.clear();
    replacements_ = 0;
}

void Teller::TellOne(const Report& report) {
    output_ += report.output;
    ++totals_.files;
    if (report.failures.empty()) return;
    ++totals_.failed;
    WriteOutput();
    progress_.Clear();
    for (const std::string& failure : report.failures)
        Complain(failure);
}

void Teller::WriteOutput() {
    if (output_.empty() || !written_) return;
    progress_.Clear();
    written_ = WriteText(std::string(kStandardStream), output_);
    output_.clear();
}

}  // namespace kestrel::cli
