#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/IconInput.h"
#include "imaging/PasteFit.h"
#include "platform/Result.h"

namespace kestrel::cli {

// What was typed, as it was typed.
struct Arguments {
    std::vector<std::string> files;
    std::string filesFrom;
    bool zeros = false;
    IconChoice choice;
    std::string out;
    std::string format;
    bool keepAspect = false;
    std::string commands;
    std::optional<std::string> seed;
    std::string from;
    std::string to;
    std::string angle = "0";
    bool json = false;
    std::string into;
    bool inPlace = false;
    bool skipExisting = false;
    std::string jobs;
    bool quiet = false;
    bool force = false;
    bool png = false;
    std::vector<std::string> icons;
    std::string size = "128";
    std::string sizes;
    std::optional<std::string> hotspot;

    imaging::PasteFit Fit() const {
        return keepAspect ? imaging::PasteFit::KeepAspect : imaging::PasteFit::Shrink;
    }
};

// One function a subcommand.
Result<void> Info(const Arguments& arguments);
Result<void> Extract(const Arguments& arguments);
Result<void> Thumbnail(const Arguments& arguments);
Result<void> Apply(const Arguments& arguments);
Result<void> Gradient(const Arguments& arguments);
Result<void> Palette(const Arguments& arguments);
Result<void> Convert(const Arguments& arguments);

}  // namespace kestrel::cli
