#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
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

inline void Append(ByteList& bytes, std::uint64_t value, int count) {
    for (int i = 0; i < count; ++i)
        bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

inline void Append(ByteList& bytes, const ByteList& more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
}

inline ByteList ReadFile(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace kestrel::test
