#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "cli/Actions.h"
#include "cli/IconInput.h"
#include "cli/IconOutput.h"
#include "platform/Result.h"

namespace kestrel::cli {

// Makes the bytes of the result from one file; called for several at once.
using Make = std::function<Result<std::vector<std::uint8_t>>(const InputFile& file,
                                                             const IconTarget& target)>;

// Runs a subcommand that makes one result of each file: IN OUT, or any number of files --into a
// folder or --in-place. All results have the format that is wanted, or that which each's name tells
// where none is.
Result<void> MakeResults(const Arguments& arguments, const std::string& wanted, const Make& make);

}  // namespace kestrel::cli
