#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kestrel::test {

using ByteList = std::vector<std::uint8_t>;

// Bytes written as hexadecimal digits, two a byte, blanks ignored.
inline ByteList Hex(std::string text) {
    std::erase(text, ' ');
    ByteList bytes;
    for (std::size_t i = 0; i + 1 < text.size(); i += 2)
        bytes.push_back(static_cast<std::uint8_t>(std::stoul(text.substr(i, 2), nullptr, 16)));
    return bytes;
}

inline ByteList operator+(ByteList bytes, const ByteList& more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
    return bytes;
}

}  // namespace kestrel::test
