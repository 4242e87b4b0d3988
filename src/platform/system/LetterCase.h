#pragma once

#include <string>
#include <string_view>

namespace kestrel::system {

// The characters of a UTF-8 text with every letter, also beyond ASCII, in lower case. A byte that
// is no UTF-8 becomes a value past the last character, equal only to the same byte.
std::u32string FoldCase(std::string_view text);

// Whether two names differ in letter case at most.
inline bool SameName(std::string_view a, std::string_view b) {
    return a == b || FoldCase(a) == FoldCase(b);
}

}  // namespace kestrel::system
