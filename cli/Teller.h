#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "cli/Progress.h"
#include "cli/Report.h"
#include "platform/Result.h"
#include "platform/system/FileCalls.h"
#include "platform/system/JointFlush.h"

namespace kestrel::cli {

// Tells what came of the files of a run, in their order. Replacements are gathered: the file
// systems are flushed once for many of them, then they take their places.
class Teller {
  public:
    // A flush takes as long for so many small files as for one, and so many can be open at once.
    static constexpr std::size_t kMostWaiting = 256;
    // Of other files so many wait behind a replacement.
    static constexpr std::size_t kMostReports = 4096;

    explicit Teller(Progress progress) : progress_(progress) {}

    // Fails when standard output does.
    Result<void> Tell(std::vector<Report> reports);
    // Once nothing more comes.
    Result<void> Finish();
    const Totals& Told() const { return totals_; }

  private:
    void PlaceWaiting();
    void TellOne(const Report& report);
    void WriteOutput();

    Progress progress_;
    Totals totals_;
    std::string output_;
    Result<void> written_;
    std::vector<Report> waiting_;
    std::size_t replacements_ = 0;
    system::FileCalls calls_;
    system::JointFlush flush_{calls_};
};

}  // namespace kestrel::cli
