#include "formats/PaletteFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <limits>
#include <optional>

#include "i18n/Messages.h"
#include "platform/system/Characters.h"
#include "platform/system/SystemError.h"

namespace kestrel::formats {

namespace {

constexpr std::string_view kFirstLine = "JASC";
constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kLinesBeforeColors = 2;

// Takes the text up to the next line end, or to the last character where there is none.
std::string_view TakeLine(std::optional<std::string_view>& rest) {
    const std::size_t end = rest->find(kLineEnd);
    const std::string_view line = rest->substr(0, end);
    if (end == std::string_view::npos) {
        rest.reset();
    } else {
        rest->remove_prefix(end + kLineEnd.size());
    }
    return line;
}

constexpr bool IsDigit(char letter) {
    return letter >= '0' && letter <= '9';
}

// Takes the digits that the text begins with.
std::string_view TakeDigits(std::string_view& text) {
    std::size_t count = 0;
    while (count < text.size() && IsDigit(text[count]))
        ++count;
    const std::string_view digits = text.substr(0, count);
    text.remove_prefix(count);
    return digits;
}

// Whether a number with these decimals is rounded away from zero; a half goes to the even side.
bool RoundsUp(std::string_view decimals, bool isOdd) {
    if (decimals.empty() || decimals[0] != '5') return !decimals.empty() && decimals[0] > '5';
    return isOdd || decimals.find_first_not_of('0', 1) != std::string_view::npos;
}

// The number that a line begins with, rounded; none when it does not fit in 32 bits with sign.
std::optional<std::int32_t> NumberOf(std::string_view line) {
    line = system::Trimmed(line, " \t");
    const bool negative = line.starts_with('-');
    if (negative || line.starts_with('+')) line.remove_prefix(1);
    constexpr std::int64_t kTooLarge = std::int64_t{1} << 32;
    std::int64_t number = 0;
    for (const char digit : TakeDigits(line))
        number = std::min(number * 10 + (digit - '0'), kTooLarge);
    if (line.starts_with('.')) {
        line.remove_prefix(1);
        if (RoundsUp(TakeDigits(line), number % 2 != 0)) ++number;
    }
    if (negative) number = -number;
    using Limits = std::numeric_limits<std::int32_t>;
    if (number < Limits::min() || number > Limits::max()) return std::nullopt;
    return static_cast<std::int32_t>(number);
}

tl::unexpected<Error> FromPalette(Error error) {
    error.source = std::string(i18n::kProgramName) + ".cPalette";
    return tl::unexpected<Error>(std::move(error));
}

}  // namespace

std::string PaletteText(const gdi::PaletteColors& colors) {
    std::string text = std::string(kFirstLine).append(kLineEnd);
    for (const gdi::COLORREF color : colors)
        text.append(kLineEnd).append(std::to_string(color));
    return text;
}

Result<void> ReadPaletteText(std::string_view text, gdi::PaletteColors& colors) {
    std::optional<std::string_view> rest = text;
    for (std::size_t line = 0; rest && line < kLinesBeforeColors; ++line)
        TakeLine(rest);
    for (gdi::COLORREF& color : colors) {
        if (!rest) break;
        const auto number = NumberOf(TakeLine(rest));
        if (!number) return system::SystemFailure(EOVERFLOW);
        color = static_cast<gdi::COLORREF>(*number) & gdi::kColorBits;
    }
    return {};
}

Result<void> WritePaletteFile(system::FileSystem& files, const gdi::PaletteColors& colors,
                              const std::string& path) {
    const std::string text = PaletteText(colors);
    const std::vector<std::uint8_t> bytes(text.begin(), text.end());
    const auto written = files.ReplaceFile(path, bytes);
    if (!written) return FromPalette(written.error());
    return {};
}

Result<void> ReadPaletteFile(system::FileSystem& files, gdi::PaletteColors& colors,
                             const std::string& path) {
    const auto bytes = files.ReadFile(path, kMaxPaletteFileBytes);
    if (!bytes) return FromPalette(bytes.error());
    const Result<void> read = ReadPaletteText(std::string(bytes->begin(), bytes->end()), colors);
    if (!read) return FromPalette(read.error());
    return {};
}

}  // namespace kestrel::formats
