#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "cli/Actions.h"
#include "cli/FileNames.h"
#include "cli/FileRun.h"
#include "platform/Result.h"

namespace kestrel::cli {

// The files that were named, or those of the list, as the list comes.
Result<std::unique_ptr<FileNames>> OpenNames(const Arguments& arguments);
// What of the arguments holds for every run over files.
Result<RunOptions> ReadRunOptions(const Arguments& arguments);

struct Inputs {
    NameList files;
    RunOptions options;
};

// The whole list, where no two files have one key: the later one is refused with what it shares
// with the earlier, whose name follows.
Result<Inputs> ReadInputs(const Arguments& arguments,
                          const std::function<std::string(std::string_view)>& keyOf,
                          std::string_view shared);

}  // namespace kestrel::cli
