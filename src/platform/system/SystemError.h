#pragma once

#include <cerrno>
#include <system_error>

#include "platform/Result.h"

namespace kestrel::system {

// The failure for an errno value, described as the system describes it.
inline tl::unexpected<Error> SystemFailure(int number) {
    return Fail(number, std::generic_category().message(number));
}

// Repeats a system call for as long as signals interrupt it.
template <class Call>
auto Retry(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

}  // namespace kestrel::system
