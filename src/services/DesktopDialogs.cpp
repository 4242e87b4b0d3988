#include "services/DesktopDialogs.h"

#include <algorithm>

namespace kestrel::services {

std::string FilterOf(std::string list, std::string_view separators) {
    for (const char separator : separators)
        std::replace(list.begin(), list.end(), separator, '\0');
    return list.append(2, '\0');
}

}  // namespace kestrel::services
