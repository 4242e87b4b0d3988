#include "cli/Report.h"

#include "cli/Streams.h"

namespace kestrel::cli {

namespace {

Result<void> Place(system::Replacement& replacement, const system::JointFlush& flush) {
    if (auto flushed = flush.FlushedOf(replacement); !flushed)
        return FailureOf(replacement.Target(), flushed.error());
    if (!replacement.FitsTarget())
        return FailureOf(replacement.Target(), {kFileChanged, "it was changed in the meantime"});
    if (auto placed = replacement.TakePlace(); !placed)
        return FailureOf(replacement.Target(), placed.error());
    return {};
}

}  // namespace

void PlaceReplacements(std::span<Report> reports, system::JointFlush& flush) {
    for (const Report& report : reports) {
        for (const auto& replacement : report.replacements)
            flush.Add(*replacement);
    }
    flush.Flush();
    for (Report& report : reports) {
        for (const auto& replacement : report.replacements)
            report.Add(Place(*replacement, flush));
        report.replacements.clear();
    }
}

}  // namespace kestrel::cli
