#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Result.h"
#include "platform/system/LockFile.h"

namespace kestrel::cli {

// The names of the files of a run, in order.
class FileNames {
  public:
    virtual ~FileNames() = default;

    // Adds some of the names to come, at most so many; none at the end.
    virtual Result<void> Take(std::size_t most, std::vector<std::string>& names) = 0;
    // How many there are in all, where that is known.
    virtual std::optional<std::size_t> Count() const { return std::nullopt; }
};

// Names in memory: their letters and a few bytes each.
class NameList : public FileNames {
  public:
    void Add(std::string_view name);
    std::string_view operator[](std::size_t index) const;
    std::size_t Size() const { return ends_.size(); }

    Result<void> Take(std::size_t most, std::vector<std::string>& names) override;
    std::optional<std::size_t> Count() const override { return Size(); }

  private:
    std::string letters_;
    std::vector<std::size_t> ends_;
    std::size_t taken_ = 0;
};

// A list of names in a file or from a pipe, read as it comes: one a line, or each ending in a zero
// byte. "-" in it is a file of that name.
class ListedNames : public FileNames {
  public:
    // "-" is standard input. A failure begins with the list's name.
    static Result<std::unique_ptr<ListedNames>> Open(const std::string& list, char end);

    // Names that were taken come no more; those that are there already are handed out before more
    // of the list is waited for.
    Result<void> Take(std::size_t most, std::vector<std::string>& names) override;

  private:
    ListedNames(std::string list, system::FileHandle owned, int file, char end);
    bool TakeWhole(std::vector<std::string>& names);
    Result<void> ReadMore();

    std::string list_;
    system::FileHandle owned_;
    int file_;
    char end_;
    bool atEnd_ = false;
    std::string unread_;
    std::size_t start_ = 0;
};

}  // namespace kestrel::cli
