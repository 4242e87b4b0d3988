#include "cli/Progress.h"

#include <string>
#include <string_view>

#include "cli/Streams.h"

namespace kestrel::cli {

namespace {

// To the start of the line, which is emptied.
constexpr std::string_view kClearLine = "\r\x1b[K";

}  // namespace

void Progress::Show(const Totals& totals) {
    if (!shown_ || Clock::now() < next_) return;
    constexpr std::chrono::milliseconds kPause(100);
    next_ = Clock::now() + kPause;
    std::string line(kClearLine);
    line += std::to_string(totals.files);
    if (count_) line.append(" of ").append(std::to_string(*count_));
    line += " files";
    if (totals.failed > 0) line.append(", ").append(std::to_string(totals.failed)) += " failed";
    Tell(line);
    visible_ = true;
}

void Progress::Clear() {
    if (!visible_) return;
    Tell(kClearLine);
    visible_ = false;
}

}  // namespace kestrel::cli
