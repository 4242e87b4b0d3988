#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>

namespace kestrel::cli {

struct Totals {
    std::size_t files = 0;
    std::size_t failed = 0;
};

// "1 file", "2 files"; of how many, where that is known.
std::string FilesText(std::size_t files, std::optional<std::size_t> count = std::nullopt);
// ", 2 failed", or nothing.
std::string FailedText(const Totals& totals);

// A line on the terminal that tells how far a run of more than a second has come.
class Progress {
  public:
    // `count`: the files of the run, where that is known. One that is not shown writes nothing.
    Progress(bool shown, std::optional<std::size_t> count) : shown_(shown), count_(count) {}

    void Show(const Totals& totals);
    // Takes the line away, so that something else can be written.
    void Clear();

  private:
    using Clock = std::chrono::steady_clock;

    bool shown_;
    std::optional<std::size_t> count_;
    Clock::time_point next_ = Clock::now() + std::chrono::seconds(1);
    bool visible_ = false;
};

}  // namespace kestrel::cli
