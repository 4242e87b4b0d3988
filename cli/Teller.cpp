#include "cli/Teller.h"

#include <utility>

#include "cli/IconOutput.h"
#include "cli/Streams.h"

namespace kestrel::cli {

Result<void> Teller::Tell(std::vector<Report> reports) {
    for (Report& report : reports) {
        if (waiting_.empty() && report.replacements.empty()) {
            TellOne(report);
            continue;
        }
        for (const auto& replacement : report.replacements)
            flush_.Add(*replacement);
        replacements_ += report.replacements.size();
        waiting_.push_back(std::move(report));
        if (replacements_ >= kMostWaiting) PlaceWaiting();
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
    if (replacements_ > 0) flush_.Flush();
    for (Report& report : waiting_) {
        for (const auto& replacement : report.replacements)
            report.Add(Place(*replacement));
        TellOne(report);
    }
    waiting_.clear();
    replacements_ = 0;
}

Result<void> Teller::Place(system::Replacement& replacement) const {
    if (auto flushed = flush_.FlushedOf(replacement); !flushed)
        return FailureOf(replacement.Target(), flushed.error());
    if (!replacement.FitsTarget())
        return FailureOf(replacement.Target(), {kFileChanged, "it was changed in the meantime"});
    if (auto placed = replacement.TakePlace(); !placed)
        return FailureOf(replacement.Target(), placed.error());
    return {};
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
