#include "platform/system/PathText.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>

#include "platform/system/Characters.h"
#include "platform/system/LetterCase.h"

namespace kestrel::system {
namespace {

constexpr std::string_view kSeparators = "\\/";

// Links count as they stand, so that one whose target is missing still names its own place.
bool Exists(const std::string& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0;
}

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

// The folder's entry that `name` names but for letter case, the first in byte order.
std::optional<std::string> MatchInFolder(const std::string& folder, std::string_view name) {
    const std::unique_ptr<DIR, CloseFolder> entries(opendir(folder.empty() ? "." : folder.c_str()));
    if (!entries) return std::nullopt;
    const std::u32string wanted = FoldCase(name);
    std::optional<std::string> match;
    while (const dirent* entry = readdir(entries.get())) {
        const std::string_view candidate = entry->d_name;
        if (match && *match <= candidate) continue;
        if (FoldCase(candidate) == wanted) match = candidate;
    }
    return match;
}

// Matches component after component; from the first that matches nothing on, all stay as written.
std::string MatchComponents(std::string_view path) {
    std::string found;
    bool matching = true;
    for (std::size_t begin = 0; begin <= path.size();) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        std::string name(path.substr(begin, end - begin));
        if (matching && !name.empty() && !Exists(found + name)) {
            const std::optional<std::string> match = MatchInFolder(found, name);
            matching = match.has_value();
            name = match.value_or(name);
        }
        found += name;
        if (end < path.size()) found += '/';
        begin = end + 1;
    }
    return found;
}

}  // namespace

std::string_view FileTitleOf(std::string_view path) {
    const std::size_t separator = path.find_last_of(kSeparators);
    return separator == std::string_view::npos ? path : path.substr(separator + 1);
}

std::string_view NameOnDisk(std::string_view path) {
    return path.substr(path.rfind('/') + 1);
}

std::string_view FolderOf(std::string_view path) {
    const std::size_t separator = path.find_last_of(kSeparators);
    return separator == std::string_view::npos ? std::string_view() : path.substr(0, separator);
}

std::string ResolvePath(const std::string& path) {
    if (Exists(path)) return path;
    std::string slashed = path;
    std::replace(slashed.begin(), slashed.end(), '\\', '/');
    return MatchComponents(slashed);
}

std::string ProperCase(std::string_view text) {
    std::string proper(text);
    bool inWord = false;
    for (char& letter : proper) {
        letter = inWord ? LowerAscii(letter) : UpperAscii(letter);
        inWord = letter != ' ' && kSeparators.find(letter) == std::string_view::npos;
    }
    return proper;
}

}  // namespace kestrel::system
