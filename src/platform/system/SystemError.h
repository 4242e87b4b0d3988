#pragma once

#include <system_error>

#include "platform/Result.h"

namespace kestrel::system {

// The failure for an errno value, described as the system describes it.
inline tl::unexpected<Error> SystemFailure(int number) {
    return Fail(number, std::generic_category().message(number));
}

}  // namespace kestrel::system
