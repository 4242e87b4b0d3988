#pragma once

#include <cstddef>
#include <functional>

#include "cli/FileNames.h"
#include "cli/IconInput.h"
#include "cli/Report.h"
#include "platform/Result.h"

namespace kestrel::cli {

struct RunOptions {
    std::size_t jobs = 1;
    // Whether a terminal may show how far the run has come.
    bool progress = true;
};

// What is done to one file; called for several at once. What fails may also stand in the report.
using FileWork = std::function<Result<void>(const InputFile& file, Report& report)>;

// Does this to every file, whether or not others fail. Each failure is told in one line, in the
// order of the files; that of a run over one file is returned instead, that of one over several is
// a summary. After SIGINT the files that were begun are finished (kInterrupted).
Result<void> RunFiles(FileNames& names, const RunOptions& options, const FileWork& work);

}  // namespace kestrel::cli
