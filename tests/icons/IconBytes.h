#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace kestrel::test {

using ByteList = std::vector<std::uint8_t>;

// Bytes written as hexadecimal digits, blanks between them ignored.
inline ByteList Hex(std::string_view text) {
    ByteList bytes;
    std::string digits;
    for (const char c : text) {
        if (c == ' ') continue;
        digits += c;
        if (digits.size() < 2) continue;
        bytes.push_back(static_cast<std::uint8_t>(std::stoul(digits, nullptr, 16)));
        digits.clear();
    }
    return bytes;
}

inline void Append(ByteList& bytes, std::uint64_t value, int count) {
    for (int i = 0; i < count; ++i)
        bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

inline void Append(ByteList& bytes, const ByteList& more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
}

// The head of a bitmap in an icon: 40 bytes, the height of both planes together.
inline ByteList DibHeader(int width, int height, int bits) {
    ByteList bytes = Hex("28000000");
    Append(bytes, static_cast<std::uint32_t>(width), 4);
    Append(bytes, static_cast<std::uint32_t>(2 * height), 4);
    Append(bytes, 1, 2);
    Append(bytes, static_cast<std::uint32_t>(bits), 2);
    bytes.resize(40);
    return bytes;
}

// An icon file of these images; every entry of its directory claims 0 x 0, 0 bits and 0 bytes.
inline ByteList IconFile(const std::vector<ByteList>& images) {
    ByteList bytes = Hex("0000 0100");
    Append(bytes, images.size(), 2);
    std::size_t offset = 6 + 16 * images.size();
    for (const ByteList& image : images) {
        bytes.resize(bytes.size() + 12);
        Append(bytes, offset, 4);
        offset += image.size();
    }
    for (const ByteList& image : images)
        Append(bytes, image);
    return bytes;
}

inline ByteList ReadFile(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace kestrel::test
