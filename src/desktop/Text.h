#pragma once

#include <QString>
#include <string_view>

namespace kestrel::desktop {

// A UTF-8 text of the editor as one of the desktop.
inline QString ToText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace kestrel::desktop
