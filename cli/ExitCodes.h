#pragma once

#include <string>
#include <utility>

#include "platform/Result.h"

namespace kestrel::cli {

// Numbers of errors that end the program with a code of their own; all others end it with 1.
inline constexpr int kWrongUsage = 1201;
inline constexpr int kInterrupted = 1202;

// What is wrong with the command line, found before anything is read or written.
inline tl::unexpected<Error> WrongUsage(std::string description) {
    return Fail(kWrongUsage, std::move(description));
}

constexpr int ExitCodeOf(const Error& error) {
    switch (error.number) {
        case kWrongUsage:
            return 2;
        case kInterrupted:
            // As shells report a program that SIGINT ended.
            return 130;
        default:
            return 1;
    }
}

}  // namespace kestrel::cli
