#include "formats/XpmPicture.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "formats/IconPixels.h"

namespace kestrel::formats {
namespace {

using Colors = std::map<std::string_view, gdi::COLORREF>;

// No colour of 24 bits.
constexpr gdi::COLORREF kTransparent = 0xFF000000;

// What stands between quotes, outside comments. Nothing is escaped in a picture.
std::vector<std::string_view> Strings(std::string_view text) {
    constexpr auto kNone = std::string_view::npos;
    std::vector<std::string_view> strings;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t comment = text.find("/*", at);
        const std::size_t open = text.find('"', at);
        if (open == kNone) break;
        const bool skips = comment < open;
        const std::size_t end = skips ? text.find("*/", comment) : text.find('"', open + 1);
        if (end == kNone) break;
        if (!skips) strings.push_back(text.substr(open + 1, end - open - 1));
        at = end + (skips ? 2 : 1);
    }
    return strings;
}

// The words of a line.
std::vector<std::string_view> Words(std::string_view line) {
    constexpr std::string_view kBlanks = " \t";
    std::vector<std::string_view> words;
    for (;;) {
        line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
        if (line.empty()) break;
        words.push_back(line.substr(0, line.find_first_of(kBlanks)));
        line.remove_prefix(words.back().size());
    }
    return words;
}

std::optional<std::size_t> Number(std::string_view digits, int base = 10) {
    std::size_t value = 0;
    const char* const last = digits.data() + digits.size();
    const auto [end, error] = std::from_chars(digits.data(), last, value, base);
    if (error != std::errc() || end != last) return std::nullopt;
    return value;
}

// "#RRGGBB", or kTransparent for "None".
std::optional<gdi::COLORREF> Color(std::string_view text) {
    if (text == "None") return kTransparent;
    const auto value =
        text.starts_with('#') && text.size() == 7 ? Number(text.substr(1), 16) : std::nullopt;
    if (!value) return std::nullopt;
    return gdi::Rgb(static_cast<std::uint8_t>(*value >> 16), static_cast<std::uint8_t>(*value >> 8),
                    static_cast<std::uint8_t>(*value));
}

// The colour for display on a colour screen, which "c" introduces.
std::optional<gdi::COLORREF> ColorOfLine(std::string_view line) {
    const auto words = Words(line);
    for (std::size_t i = 0; i + 1 < words.size(); i += 2)
        if (words[i] == "c") return Color(words[i + 1]);
    return std::nullopt;
}

struct Head {
    std::size_t width = 0;
    std::size_t height = 0;
    std::size_t colors = 0;
    std::size_t letters = 0;  // of each pixel
};

std::optional<Head> ReadHead(std::string_view line) {
    const auto words = Words(line);
    if (words.size() < 4) return std::nullopt;
    Head head;
    std::size_t* const fields[] = {&head.width, &head.height, &head.colors, &head.letters};
    for (std::size_t i = 0; i < std::size(fields); ++i) {
        const auto number = Number(words[i]);
        if (!number || *number < 1 || *number > kMaxImageSide) return std::nullopt;
        *fields[i] = *number;
    }
    return head;
}

tl::unexpected<Error> Wrong(std::string what) {
    return Fail(kInvalidPicture, std::move(what));
}

}  // namespace

Result<gdi::IconPlanes> ReadXpm(std::string_view text) {
    const auto strings = Strings(text);
    const auto head = strings.empty() ? std::nullopt : ReadHead(strings[0]);
    if (!head) return Wrong("no size, colours and letters from 1 to 1024");
    if (strings.size() != 1 + head->colors + head->height)
        return Wrong("lines are missing or left");
    Colors colors;
    for (const std::string_view line : std::span(strings).subspan(1, head->colors)) {
        const auto color = ColorOfLine(line.substr(std::min(line.size(), head->letters)));
        if (!color) return Wrong("no colour #RRGGBB or None in \"" + std::string(line) + "\"");
        colors[line.substr(0, head->letters)] = *color;
    }
    gdi::IconPlanes icon(static_cast<int>(head->width), static_cast<int>(head->height));
    for (int y = 0; y < icon.Height(); ++y) {
        const std::string_view row = strings[1 + head->colors + static_cast<std::size_t>(y)];
        if (row.size() != head->width * head->letters) return Wrong("a row of another length");
        for (int x = 0; x < icon.Width(); ++x) {
            const auto found =
                colors.find(row.substr(static_cast<std::size_t>(x) * head->letters, head->letters));
            if (found == colors.end()) return Wrong("a letter that has no colour");
            if (found->second != kTransparent) icon.SetOpaque(x, y, found->second);
        }
    }
    return icon;
}

}  // namespace kestrel::formats
