#pragma once

#include <cerrno>

namespace kestrel::system {

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
