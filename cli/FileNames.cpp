#include "cli/FileNames.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "cli/Interrupt.h"
#include "cli/Streams.h"
#include "platform/system/SystemError.h"

namespace kestrel::cli {

namespace {

constexpr std::size_t kPartOfList = 1U << 16;
// No system takes a longer one.
constexpr std::size_t kLongestName = 1U << 16;

}  // namespace

void NameList::Add(std::string_view name) {
    letters_ += name;
    ends_.push_back(letters_.size());
}

std::string_view NameList::operator[](std::size_t index) const {
    const std::size_t start = index == 0 ? 0 : ends_[index - 1];
    return std::string_view(letters_).substr(start, ends_[index] - start);
}

Result<void> NameList::Take(std::size_t most, std::vector<std::string>& names) {
    const std::size_t end = std::min(taken_ + most, Size());
    for (; taken_ < end; ++taken_)
        names.emplace_back((*this)[taken_]);
    return {};
}

ListedNames::ListedNames(std::string list, system::FileHandle owned, int file, char end)
    : list_(std::move(list)), owned_(std::move(owned)), file_(file), end_(end) {}

Result<std::unique_ptr<ListedNames>> ListedNames::Open(const std::string& list, char end) {
    system::FileHandle owned;
    int file = STDIN_FILENO;
    if (list != kStandardStream) {
        owned = system::FileHandle(
            system::Retry([&] { return open(list.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY); }));
        file = owned.Number();
        if (file < 0) return FailureOf(list, system::SystemFailure(errno).value());
    }
    return std::unique_ptr<ListedNames>(new ListedNames(list, std::move(owned), file, end));
}

Result<void> ListedNames::Take(std::size_t most, std::vector<std::string>& names) {
    most += names.size();
    const std::size_t before = names.size();
    while (names.size() < most) {
        if (TakeWhole(names)) continue;
        if (atEnd_ || names.size() > before) break;
        if (auto read = ReadMore(); !read) return read;
    }
    return {};
}

// Takes the name that stands whole in what was read; at the end of the list the last one too.
bool ListedNames::TakeWhole(std::vector<std::string>& names) {
    for (;;) {
        std::size_t stop = unread_.find(end_, start_);
        if (stop == std::string::npos) {
            if (!atEnd_ || start_ == unread_.size()) return false;
            stop = unread_.size();
        }
        std::string name = unread_.substr(start_, stop - start_);
        start_ = std::min(stop + 1, unread_.size());
        if (name.empty()) continue;
        if (name == kStandardStream) name.insert(0, "./");
        names.push_back(std::move(name));
        return true;
    }
}

Result<void> ListedNames::ReadMore() {
    if (unread_.size() - start_ > kLongestName)
        return FailureOf(list_, {ENAMETOOLONG, "a name in it is too long"});
    unread_.erase(0, std::exchange(start_, 0));
    const std::size_t filled = unread_.size();
    if (!WaitForInput(file_)) {
        atEnd_ = true;
        unread_.clear();
        return {};
    }
    unread_.resize(filled + kPartOfList);
    const ssize_t count =
        system::Retry([&] { return read(file_, unread_.data() + filled, kPartOfList); });
    const int error = errno;
    unread_.resize(filled + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    atEnd_ = count <= 0;
    if (end_ != '\0' && unread_.find('\0', filled) != std::string::npos)
        return FailureOf(list_, {EINVAL, "a name in it holds a zero byte, which -0 tells about"});
    if (count >= 0) return {};
    return FailureOf(list_ == kStandardStream ? "standard input" : list_,
                     system::SystemFailure(error).value());
}

}  // namespace kestrel::cli
