#include "cli/Numbers.h"

#include <charconv>

namespace kestrel::cli {

std::vector<std::string_view> Split(std::string_view list) {
    std::vector<std::string_view> parts;
    for (;;) {
        const std::size_t comma = list.find(',');
        parts.push_back(list.substr(0, comma));
        if (comma == std::string_view::npos) return parts;
        list.remove_prefix(comma + 1);
    }
}

std::optional<std::int64_t> NumberIn(std::string_view text, std::int64_t least, std::int64_t most) {
    std::int64_t number = 0;
    const char* end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stopped != end || number < least || number > most)
        return std::nullopt;
    return number;
}

namespace {

// The colour of six hexadecimal digits.
std::optional<gdi::COLORREF> HexColorIn(std::string_view digits) {
    constexpr std::size_t kDigits = 6;
    constexpr int kBase = 16;
    std::uint32_t number = 0;
    const char* end = digits.data() + digits.size();
    const auto [stopped, error] = std::from_chars(digits.data(), end, number, kBase);
    if (error != std::errc() || stopped != end || digits.size() != kDigits) return std::nullopt;
    const auto level = [number](unsigned shift) {
        return static_cast<std::uint8_t>(number >> shift);
    };
    return gdi::Rgb(level(16), level(8), level(0));
}

}  // namespace

std::optional<gdi::COLORREF> ColorIn(std::string_view text) {
    if (text.starts_with('#')) return HexColorIn(text.substr(1));
    constexpr int kMostLevel = 255;
    constexpr std::size_t kChannels = 3;
    const std::vector<std::string_view> parts = Split(text);
    if (parts.size() != kChannels) return std::nullopt;
    gdi::COLORREF color = 0;
    for (std::size_t channel = 0; channel < kChannels; ++channel) {
        const auto level = NumberIn(parts[channel], 0, kMostLevel);
        if (!level) return std::nullopt;
        color |= static_cast<gdi::COLORREF>(*level) << (8 * channel);
    }
    return color;
}

}  // namespace kestrel::cli
