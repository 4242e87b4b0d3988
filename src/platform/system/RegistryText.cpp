#include "platform/system/RegistryText.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/system/LetterCase.h"

namespace kestrel::system {
namespace {

constexpr std::string_view kHeader = "KestrelIconEditor registry 1";
constexpr char kEscape = '\\';

// What follows the backslash, and what both stand for.
constexpr std::pair<char, char> kEscapes[] = {{'\\', '\\'}, {'"', '"'},  {']', ']'},
                                              {'n', '\n'},  {'r', '\r'}, {'0', '\0'}};

std::string Escaped(std::string_view text) {
    std::string escaped;
    for (const char letter : text) {
        const auto* row = std::find_if(std::begin(kEscapes), std::end(kEscapes),
                                       [&](const auto& e) { return e.second == letter; });
        if (row == std::end(kEscapes)) {
            escaped += letter;
        } else {
            escaped += {kEscape, row->first};
        }
    }
    return escaped;
}

std::string Quoted(std::string_view text) {
    return '"' + Escaped(text) + '"';
}

// Takes text off the front of `rest` up to an unescaped `end`, which is taken too but not returned.
std::optional<std::string> TakeEscaped(std::string_view& rest, char end) {
    std::string text;
    for (std::size_t i = 0; i < rest.size(); ++i) {
        if (rest[i] == end) {
            rest.remove_prefix(i + 1);
            return text;
        }
        if (rest[i] != kEscape) {
            text += rest[i];
            continue;
        }
        if (++i == rest.size()) return std::nullopt;
        const auto* row = std::find_if(std::begin(kEscapes), std::end(kEscapes),
                                       [&](const auto& e) { return e.first == rest[i]; });
        if (row == std::end(kEscapes)) return std::nullopt;
        text += row->second;
    }
    return std::nullopt;
}

bool TakeLiteral(std::string_view& rest, std::string_view literal) {
    if (!rest.starts_with(literal)) return false;
    rest.remove_prefix(literal.size());
    return true;
}

// The key that the line "[key]" opens, added as needed; null for any other line.
RegistryKey* ReadKeyLine(std::string_view line, RegistryKeys& keys) {
    if (!TakeLiteral(line, "[")) return nullptr;
    std::optional<std::string> path = TakeEscaped(line, ']');
    if (!path || path->empty() || !line.empty()) return nullptr;
    RegistryKey& key = keys[FoldCase(*path)];
    if (key.path.empty()) key.path = std::move(*path);
    return &key;
}

bool ReadValueLine(std::string_view line, RegistryKey& key) {
    if (!TakeLiteral(line, "\"")) return false;
    std::optional<std::string> name = TakeEscaped(line, '"');
    if (!name || !TakeLiteral(line, "=\"")) return false;
    std::optional<std::string> text = TakeEscaped(line, '"');
    if (!text || !line.empty()) return false;
    std::u32string folded = FoldCase(*name);
    return key.values
        .try_emplace(std::move(folded), RegistryValue{std::move(*name), std::move(*text)})
        .second;
}

}  // namespace

std::optional<RegistryKeys> ParseRegistry(std::string_view text) {
    RegistryKeys keys;
    RegistryKey* key = nullptr;
    bool headerSeen = false;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        if (end == std::string_view::npos) return std::nullopt;  // cut off
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(end + 1);
        if (!headerSeen) {
            if (line != kHeader) return std::nullopt;
            headerSeen = true;
        } else if (line.starts_with('[')) {
            key = ReadKeyLine(line, keys);
            if (key == nullptr) return std::nullopt;
        } else if (!line.empty() && (key == nullptr || !ReadValueLine(line, *key))) {
            return std::nullopt;
        }
    }
    return keys;
}

std::string FormatRegistry(const RegistryKeys& keys) {
    std::string text(kHeader);
    text += '\n';
    for (const auto& [foldedKey, key] : keys) {
        text += "\n[" + Escaped(key.path) + "]\n";
        for (const auto& [foldedName, value] : key.values) {
            text += Quoted(value.name) + '=' + Quoted(value.text) + '\n';
        }
    }
    return text;
}

}  // namespace kestrel::system
