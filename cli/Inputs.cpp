#include "cli/Inputs.h"

#include <algorithm>
#include <cstdint>
#include <thread>
#include <utility>
#include <vector>

#include "cli/ExitCodes.h"
#include "cli/Numbers.h"
#include "cli/Streams.h"

namespace kestrel::cli {

namespace {

using KeyOf = std::function<std::string(std::string_view)>;

constexpr std::size_t kMostJobs = 256;

NameList Named(const std::vector<std::string>& files) {
    NameList names;
    for (const std::string& file : files)
        names.Add(file);
    return names;
}

Result<std::unique_ptr<ListedNames>> OpenList(const Arguments& arguments) {
    return ListedNames::Open(arguments.filesFrom, arguments.zeros ? '\0' : '\n');
}

Result<void> CheckNamed(const Arguments& arguments) {
    if (arguments.files.empty() == arguments.filesFrom.empty())
        return WrongUsage(arguments.files.empty() ? "FILE is required"
                                                  : "files are named beside --files-from");
    if (arguments.zeros && arguments.filesFrom.empty())
        return WrongUsage("-0 tells about the list of --files-from");
    return {};
}

Result<NameList> ReadNames(const Arguments& arguments) {
    if (auto checked = CheckNamed(arguments); !checked) return tl::unexpected(checked.error());
    if (arguments.filesFrom.empty()) return Named(arguments.files);
    const auto list = OpenList(arguments);
    if (!list) return tl::unexpected(list.error());
    NameList names;
    for (std::vector<std::string> some;; some.clear()) {
        constexpr std::size_t kAtOnce = 1024;
        if (auto read = (*list)->Take(kAtOnce, some); !read) return tl::unexpected(read.error());
        if (some.empty()) return names;
        for (const std::string& name : some)
            names.Add(name);
    }
}

Result<void> CheckDistinct(const NameList& files, const KeyOf& keyOf, std::string_view shared) {
    // Sums of the keys take less room than the keys; files whose sums are alike are next to each
    // other, in order.
    std::vector<std::pair<std::uint64_t, std::size_t>> sums(files.Size());
    for (std::size_t i = 0; i < files.Size(); ++i)
        sums[i] = {std::hash<std::string>()(keyOf(files[i])), i};
    std::ranges::sort(sums);
    const auto alike = std::ranges::adjacent_find(sums, [&](const auto& one, const auto& other) {
        return one.first == other.first && keyOf(files[one.second]) == keyOf(files[other.second]);
    });
    if (alike == sums.end()) return {};
    return WrongUsage(std::string(files[(alike + 1)->second])
                          .append(": ")
                          .append(shared)
                          .append(" ")
                          .append(files[alike->second]));
}

}  // namespace

Result<std::unique_ptr<FileNames>> OpenNames(const Arguments& arguments) {
    if (auto checked = CheckNamed(arguments); !checked) return tl::unexpected(checked.error());
    if (arguments.filesFrom.empty()) return std::make_unique<NameList>(Named(arguments.files));
    return OpenList(arguments);
}

Result<RunOptions> ReadRunOptions(const Arguments& arguments) {
    RunOptions options;
    options.progress = !arguments.quiet;
    if (arguments.jobs.empty()) {
        options.jobs = std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, kMostJobs);
        return options;
    }
    const auto jobs = NumberIn(arguments.jobs, 1, kMostJobs);
    if (!jobs) return WrongUsage("-j wants a number from 1 to " + std::to_string(kMostJobs));
    options.jobs = static_cast<std::size_t>(*jobs);
    return options;
}

Result<Inputs> ReadInputs(const Arguments& arguments, const KeyOf& keyOf, std::string_view shared) {
    const auto options = ReadRunOptions(arguments);
    if (!options) return tl::unexpected(options.error());
    auto files = ReadNames(arguments);
    if (!files) return tl::unexpected(files.error());
    if (auto checked = CheckDistinct(*files, keyOf, shared); !checked)
        return tl::unexpected(checked.error());
    return Inputs{*std::move(files), *options};
}

}  // namespace kestrel::cli
