#include "platform/system/Profile.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "platform/system/Characters.h"
#include "platform/system/LetterCase.h"
#include "platform/system/PathText.h"
#include "platform/system/SystemError.h"

namespace kestrel::system {
namespace {

constexpr std::size_t kMaxFile = 1U << 20U;
constexpr std::size_t kMaxValueCharacters = 2048;
constexpr std::size_t kNone = std::string_view::npos;
constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view Bare(std::string_view text) {
    return Trimmed(text, kBlanks);
}

bool IsQuoted(std::string_view text) {
    return text.size() >= 2 && (text.front() == '"' || text.front() == '\'') &&
           text.front() == text.back();
}

// Bytes beyond ASCII may be in any encoding; control characters tell that this is no text at all.
bool IsText(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](char byte) {
        return static_cast<unsigned char>(byte) >= ' ' || byte == '\t' || byte == '\r' ||
               byte == '\n';
    });
}

struct Line {
    std::string text;
    std::string end;  // "\n", "\r\n", or nothing on a last line that was not ended
};

std::vector<Line> LinesOf(std::string_view text) {
    std::vector<Line> lines;
    while (!text.empty()) {
        const std::size_t feed = text.find('\n');
        const std::size_t size = feed == kNone ? text.size() : feed + 1;
        const std::string_view whole = text.substr(0, size);
        const std::size_t shown = whole.find_last_not_of("\r\n") + 1;
        lines.push_back({std::string(whole.substr(0, shown)), std::string(whole.substr(shown))});
        text.remove_prefix(size);
    }
    return lines;
}

// The section that a line opens.
std::optional<std::string_view> HeadingOf(std::string_view line) {
    line = Bare(line);
    if (line.starts_with(kByteOrderMark)) line.remove_prefix(kByteOrderMark.size());
    const std::size_t close = line.find(']');
    if (!line.starts_with('[') || close == kNone) return std::nullopt;
    return Bare(line.substr(1, close - 1));
}

bool HoldsKey(std::string_view line, std::string_view key) {
    const std::size_t equals = line.find('=');
    const bool isComment = Bare(line).starts_with(';');
    return equals != kNone && !isComment && SameName(Bare(line.substr(0, equals)), key);
}

std::string_view ValueOf(std::string_view line) {
    const std::string_view value = Bare(line.substr(line.find('=') + 1));
    return IsQuoted(value) ? value.substr(1, value.size() - 2) : value;
}

// Where a value stands, or would have to: all line indices, kNone for what there is not.
struct Place {
    std::size_t section = kNone;
    std::size_t key = kNone;
    std::size_t insertion = kNone;  // behind the section's last line that is not blank
};

Place Locate(const std::vector<Line>& lines, std::string_view section, std::string_view key) {
    Place place;
    for (std::size_t i = 0; i < lines.size() && place.key == kNone; ++i) {
        const std::string& text = lines[i].text;
        const std::optional<std::string_view> heading = HeadingOf(text);
        if (heading && place.section != kNone) break;
        if (heading && SameName(*heading, section)) place.section = i;
        if (place.section == kNone) continue;
        if (!Bare(text).empty()) place.insertion = i + 1;
        if (!heading && HoldsKey(text, key)) place.key = i;
    }
    return place;
}

Result<std::vector<Line>> LoadLines(FileSystem& files, const std::string& file) {
    const Result<std::vector<std::uint8_t>> bytes = files.ReadFile(file, kMaxFile);
    if (!bytes && bytes.error().number == ENOENT) return std::vector<Line>{};
    if (!bytes) return tl::unexpected(bytes.error());
    const std::string text(bytes->begin(), bytes->end());
    if (!IsText(text)) return Fail(EBADMSG, "The settings file is damaged");
    return LinesOf(text);
}

Result<void> StoreLines(FileSystem& files, const std::string& file,
                        const std::vector<Line>& lines) {
    std::vector<std::uint8_t> bytes;
    for (const Line& line : lines) {
        bytes.insert(bytes.end(), line.text.begin(), line.text.end());
        bytes.insert(bytes.end(), line.end.begin(), line.end.end());
    }
    if (bytes.size() > kMaxFile) return SystemFailure(EFBIG);
    Result<void> stored = files.ReplaceFile(file, bytes);
    if (stored || stored.error().number != ENOENT) return stored;
    if (!files.MakeFolder(std::string(FolderOf(file)))) return stored;
    return files.ReplaceFile(file, bytes);
}

// The value as it has to be written so that it reads back the same.
std::string WrittenValue(std::string_view value) {
    if (Bare(value) == value && !IsQuoted(value)) return std::string(value);
    return std::string("\"").append(value).append("\"");
}

bool FitsOneLine(std::string_view text) {
    return IsText(text) && text.find_first_of("\r\n") == kNone;
}

// Whether a section or key of this name would be found again after it was written.
bool IsUsableName(std::string_view name, std::string_view reserved) {
    return !name.empty() && FitsOneLine(name) && Bare(name) == name &&
           name.find_first_of(reserved) == kNone;
}

void Insert(std::vector<Line>& lines, std::size_t index, std::string text) {
    const bool ended = !lines.empty() && lines[0].end.ends_with('\n');
    const std::string end = ended ? lines[0].end : "\n";
    if (index > 0 && !lines[index - 1].end.ends_with('\n')) lines[index - 1].end = end;
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(index), Line{std::move(text), end});
}

}  // namespace

std::string ReadProfileString(FileSystem& files, std::string_view section, std::string_view key,
                              std::string_view otherwise, const std::string& file) {
    const Result<std::vector<Line>> lines = LoadLines(files, file);
    if (!lines) return std::string(otherwise);
    const Place place = Locate(*lines, section, key);
    if (place.key == kNone) return std::string(otherwise);
    return std::string(FirstCharacters(ValueOf((*lines)[place.key].text), kMaxValueCharacters));
}

Result<void> WriteProfileString(FileSystem& files, std::string_view section, std::string_view key,
                                std::string_view value, const std::string& file) {
    if (!IsUsableName(section, "]") || !IsUsableName(key, "[=;") || !FitsOneLine(value)) {
        return SystemFailure(EINVAL);
    }
    Result<std::vector<Line>> lines = LoadLines(files, file);
    if (!lines) return tl::unexpected(lines.error());
    Place place = Locate(*lines, section, key);
    if (place.key != kNone) {
        std::string& text = (*lines)[place.key].text;
        if (ValueOf(text) == value) return {};
        text = text.substr(0, text.find('=') + 1) + WrittenValue(value);
        return StoreLines(files, file, *lines);
    }
    if (place.section == kNone) {
        Insert(*lines, lines->size(), std::string("[").append(section).append("]"));
        place.insertion = lines->size();
    }
    Insert(*lines, place.insertion, std::string(key).append("=").append(WrittenValue(value)));
    return StoreLines(files, file, *lines);
}

}  // namespace kestrel::system
