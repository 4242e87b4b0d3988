#include "platform/system/IniText.h"

#include <algorithm>
#include <utility>

#include "platform/system/Characters.h"
#include "platform/system/LetterCase.h"

namespace kestrel::system {
namespace {

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

// Control characters tell that this is no text at all.
bool IsText(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](char byte) {
        return static_cast<unsigned char>(byte) >= ' ' || byte == '\t' || byte == '\r' ||
               byte == '\n';
    });
}

bool FitsOneLine(std::string_view text) {
    return IsText(text) && text.find_first_of("\r\n") == kNone;
}

// Whether a section or key of this name would be found again after it was written.
bool IsUsableName(std::string_view name, std::string_view reserved) {
    return !name.empty() && FitsOneLine(name) && Bare(name) == name &&
           name.find_first_of(reserved) == kNone;
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

// The value as it has to be written so that it reads back the same.
std::string WrittenValue(std::string_view value) {
    if (Bare(value) == value && !IsQuoted(value)) return std::string(value);
    return std::string("\"").append(value).append("\"");
}

}  // namespace

std::optional<IniText> IniText::Parse(std::string_view bytes) {
    if (!IsText(bytes)) return std::nullopt;
    IniText ini;
    while (!bytes.empty()) {
        const std::size_t feed = bytes.find('\n');
        const std::size_t size = feed == kNone ? bytes.size() : feed + 1;
        const std::string_view whole = bytes.substr(0, size);
        const std::size_t shown = whole.find_last_not_of("\r\n") + 1;
        ini.lines_.push_back(
            {std::string(whole.substr(0, shown)), std::string(whole.substr(shown))});
        bytes.remove_prefix(size);
    }
    return ini;
}

bool IniText::CanHold(std::string_view section, std::string_view key, std::string_view value) {
    return IsUsableName(section, "]") && IsUsableName(key, "[=;") && FitsOneLine(value);
}

IniText::Place IniText::Locate(std::string_view section, std::string_view key) const {
    Place place;
    for (std::size_t i = 0; i < lines_.size() && !place.key; ++i) {
        const std::string& text = lines_[i].text;
        const std::optional<std::string_view> heading = HeadingOf(text);
        if (heading && place.section) break;
        if (heading && SameName(*heading, section)) place.section = i;
        if (!place.section) continue;
        if (!Bare(text).empty()) place.insertion = i + 1;
        if (!heading && HoldsKey(text, key)) place.key = i;
    }
    return place;
}

std::vector<std::string_view> IniText::Sections() const {
    std::vector<std::string_view> sections;
    for (const Line& line : lines_) {
        if (const auto heading = HeadingOf(line.text)) sections.push_back(*heading);
    }
    return sections;
}

std::optional<std::string_view> IniText::Find(std::string_view section,
                                              std::string_view key) const {
    const Place place = Locate(section, key);
    if (!place.key) return std::nullopt;
    return ValueOf(lines_[*place.key].text);
}

bool IniText::Set(std::string_view section, std::string_view key, std::string_view value) {
    Place place = Locate(section, key);
    if (place.key) {
        std::string& text = lines_[*place.key].text;
        if (ValueOf(text) == value) return false;
        text = text.substr(0, text.find('=') + 1) + WrittenValue(value);
        return true;
    }
    if (!place.section) {
        Insert(lines_.size(), std::string("[").append(section).append("]"));
        place.insertion = lines_.size();
    }
    Insert(place.insertion, std::string(key).append("=").append(WrittenValue(value)));
    return true;
}

bool IniText::Erase(std::string_view section, std::string_view key) {
    bool erased = false;
    // A second one would come to light when the first is gone.
    for (Place place = Locate(section, key); place.key; place = Locate(section, key)) {
        lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(*place.key));
        erased = true;
    }
    return erased;
}

std::string IniText::Text() const {
    std::string text;
    for (const Line& line : lines_) {
        text.append(line.text).append(line.end);
    }
    return text;
}

void IniText::Insert(std::size_t index, std::string text) {
    const bool ended = !lines_.empty() && lines_[0].end.ends_with('\n');
    const std::string end = ended ? lines_[0].end : "\n";
    if (index > 0 && !lines_[index - 1].end.ends_with('\n')) lines_[index - 1].end = end;
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(index), Line{std::move(text), end});
}

}  // namespace kestrel::system
