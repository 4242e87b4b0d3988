#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "platform/Result.h"
#include "platform/system/JointFlush.h"
#include "platform/system/Replacement.h"

namespace kestrel::cli {

// What came of one file of a run. It is told when all files before it have been.
struct Report {
    void Add(const Result<void>& done) {
        if (!done) failures.push_back(done.error().description);
    }

    std::string output;  // for standard output
    std::vector<std::string> failures;
    // Results in place of files that are there, which wait for their flush.
    std::vector<std::unique_ptr<system::Replacement>> replacements;
};

// Puts the replacements of these reports in their places after one flush. What fails is added to
// its report.
void PlaceReplacements(std::span<Report> reports, system::JointFlush& flush);

}  // namespace kestrel::cli
