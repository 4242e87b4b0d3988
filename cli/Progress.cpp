#include "cli/Progress.h"

#include <string_view>

#include "cli/Streams.h"

namespace kestrel::cli {

namespace {

// To the start of the line, which is emptied.
constexpr std::string_view kClearLine = "\r\x1b[K";

}  // namespace

std::string FilesText(std::size_t files, std::optional<std::size_t> count) {
    std::string text = std::to_string(files);
    if (count) text.append(" of ").append(std::to_string(*count));
    return text + (count.value_or(files) == 1 ? " file" : " files");
}

std::string FailedText(const Totals& totals) {
    if (totals.failed == 0) return {};
    return ", " + std::to_string(totals.failed) + " failed";
}

void Progress::Show(const Totals& totals) {
    if (!shown_ || Clock::now() < next_) return;
    constexpr std::chrono::milliseconds kPause(100);
    next_ = Clock::now() + kPause;
    const std::string line(kClearLine);
    Tell(line + FilesText(totals.files, count_) + FailedText(totals));
    visible_ = true;
}

void Progress::Clear() {
    if (!visible_) return;
    Tell(kClearLine);
    visible_ = false;
}

}  // namespace kestrel::cli
