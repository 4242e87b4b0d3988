#include "cli/Conversion.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "cli/ExitCodes.h"
#include "cli/FileRun.h"
#include "cli/Inputs.h"
#include "cli/Results.h"
#include "cli/Streams.h"
#include "platform/system/FileCalls.h"
#include "platform/system/Replacement.h"

namespace kestrel::cli {

namespace {

// IN OUT. Of the images of several INs an icon of several sizes is made.
Result<void> MakeOne(const Arguments& arguments, const std::string& format, const Make& make) {
    constexpr std::size_t kInOut = 2;
    const std::vector<std::string>& files = arguments.files;
    if (!arguments.filesFrom.empty()) return WrongUsage("--files-from wants --into");
    if (files.empty()) return WrongUsage("IN is required");
    if (files.size() < kInOut) return WrongUsage("OUT is required");
    if (files.size() > kInOut && arguments.sizes.empty())
        return WrongUsage("several files want --into");
    const IconTarget target{files.back(), format};
    const auto isOlder = [&](const std::string& file) { return IsNewer(target.name, file); };
    if (auto checked = CheckTarget(target); !checked) return checked;
    if (auto checked = CheckTerminal(target.name, arguments.force); !checked) return checked;
    if (arguments.skipExisting && std::all_of(files.begin(), files.end() - 1, isOlder)) return {};
    const auto bytes = make({files[0]}, target);
    if (!bytes) return tl::unexpected(bytes.error());
    return WriteOutput(target.name, *bytes);
}

// The name of a file's result in the folder where all go.
std::string ResultName(std::string_view file, const std::string& format) {
    if (!format.empty()) return StemOf(file) + "." + format;
    return std::filesystem::path(file).filename().string();
}

Result<void> MakeInto(const Arguments& arguments, const std::string& format, const Make& make) {
    const auto nameOf = [&](std::string_view file) { return ResultName(file, format); };
    auto inputs = ReadInputs(arguments, nameOf, "its result would be called as that of");
    if (!inputs) return tl::unexpected(inputs.error());
    Results results(inputs->files, arguments.into, arguments.skipExisting);
    const auto write = [&](const InputFile& file, Report& report) -> Result<void> {
        const IconTarget target{results.PathOf(nameOf(file.name)), format};
        if (auto told = CheckTarget(target); !told) return told;
        if (results.IsSkipped(file.name, target.name)) return {};
        const auto bytes = make(file, target);
        if (!bytes) return tl::unexpected(bytes.error());
        return results.Write(target.name, *bytes, report);
    };
    return RunFiles(inputs->files, inputs->options, write);
}

// The file that a name leads to, by whatever way.
std::string FileBehind(std::string_view name) {
    std::error_code failed;
    const std::filesystem::path path = std::filesystem::canonical(name, failed);
    return failed ? std::string(name) : path.string();
}

Result<void> MakeInPlace(const Arguments& arguments, const Make& make) {
    auto inputs = ReadInputs(arguments, FileBehind, "it is the same file as");
    if (!inputs) return tl::unexpected(inputs.error());
    system::FileCalls calls;
    const auto replace = [&](const InputFile& file, Report& report) -> Result<void> {
        const IconTarget target{file.name, ""};
        if (auto told = CheckTarget(target); !told) return told;
        const auto bytes = make(file, target);
        if (!bytes) return tl::unexpected(bytes.error());
        auto replacement = system::Replacement::Write(calls, file.name, *bytes);
        if (!replacement) return FailureOf(file.name, replacement.error());
        report.replacements.push_back(*std::move(replacement));
        return {};
    };
    return RunFiles(inputs->files, inputs->options, replace);
}

}  // namespace

Result<void> MakeResults(const Arguments& arguments, const std::string& wanted, const Make& make) {
    const auto known = FormatNamed(wanted);
    if (!known) return tl::unexpected(known.error());
    const std::string format(*known);
    if (arguments.inPlace && (!arguments.into.empty() || !format.empty() || arguments.skipExisting))
        return WrongUsage("--in-place goes with neither --into, --format nor --skip-existing");
    if (arguments.inPlace) return MakeInPlace(arguments, make);
    if (!arguments.into.empty()) return MakeInto(arguments, format, make);
    return MakeOne(arguments, format, make);
}

}  // namespace kestrel::cli
