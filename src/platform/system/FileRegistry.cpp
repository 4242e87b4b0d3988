#include "platform/system/FileRegistry.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <iterator>
#include <utility>
#include <vector>

#include "platform/system/Characters.h"
#include "platform/system/LetterCase.h"
#include "platform/system/LockFile.h"
#include "platform/system/PathText.h"
#include "platform/system/SystemError.h"

namespace kestrel::system {
namespace {

constexpr char kEscape = '\\';
struct Escape {
    char letter;  // what follows the backslash
    char meant;   // what both stand for
};
constexpr Escape kEscapes[] = {{'\\', '\\'}, {'n', '\n'}, {'r', '\r'}, {'0', '\0'}};
constexpr std::string_view kHexDigits = "0123456789ABCDEF";

std::string_view RootName(RegistryRoot root) {
    switch (root) {
        case RegistryRoot::ClassesRoot:
            return "ClassesRoot";
        case RegistryRoot::CurrentUser:
            return "CurrentUser";
        case RegistryRoot::LocalMachine:
            break;
    }
    return "LocalMachine";
}

std::string SectionOf(RegistryRoot root, std::string_view key) {
    std::string section(RootName(root));
    key = Trimmed(key, "\\");
    if (!key.empty()) section.append("\\").append(key);
    return section;
}

// The name in the file. The one that stands for the default value belongs to nothing else.
std::string_view WrittenName(std::string_view name) {
    if (name.empty()) return "@";
    return name == "@" ? std::string_view() : name;
}

std::string Escaped(std::string_view text) {
    std::string escaped;
    for (const char letter : text) {
        const auto byte = static_cast<unsigned char>(letter);
        const auto* row =
            std::find_if(std::begin(kEscapes), std::end(kEscapes),
                         [&](const Escape& escape) { return escape.meant == letter; });
        if (row != std::end(kEscapes)) {
            escaped += {kEscape, row->letter};
        } else if (byte < ' ' && letter != '\t') {
            escaped += {kEscape, 'x', kHexDigits[byte / 16], kHexDigits[byte % 16]};
        } else {
            escaped += letter;
        }
    }
    return escaped;
}

// Takes what follows a backslash off the text. A backslash that begins no escape is one itself.
char TakeEscape(std::string_view& text) {
    if (text.empty()) return kEscape;
    const auto* row = std::find_if(std::begin(kEscapes), std::end(kEscapes),
                                   [&](const Escape& escape) { return escape.letter == text[0]; });
    if (row != std::end(kEscapes)) {
        text.remove_prefix(1);
        return row->meant;
    }
    const std::string_view digits = text.substr(1, 2);
    unsigned char byte = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), byte, 16);
    if (text[0] != 'x' || read.ptr - digits.data() != 2) return kEscape;
    text.remove_prefix(3);
    return static_cast<char>(byte);
}

std::string Unescaped(std::string_view text) {
    std::string plain;
    while (!text.empty()) {
        const char letter = text[0];
        text.remove_prefix(1);
        plain += letter == kEscape ? TakeEscape(text) : letter;
    }
    return plain;
}

}  // namespace

FileRegistry::FileRegistry(FileSystem& files, std::string path)
    : files_(files), path_(std::move(path)) {}

std::optional<std::string> FileRegistry::ReadValue(RegistryRoot root, std::string_view key,
                                                   std::string_view name) {
    const Result<IniText> ini = ReadProfile(files_, path_);
    if (!ini) return std::nullopt;
    const auto value = ini->Find(SectionOf(root, key), WrittenName(name));
    if (!value) return std::nullopt;
    return Unescaped(*value);
}

bool FileRegistry::KeyExists(RegistryRoot root, std::string_view key) {
    const Result<IniText> ini = ReadProfile(files_, path_);
    if (!ini) return false;
    const std::u32string wanted = FoldCase(SectionOf(root, key));
    const std::vector<std::string_view> sections = ini->Sections();
    return std::any_of(sections.begin(), sections.end(), [&](std::string_view section) {
        const std::u32string folded = FoldCase(section);
        return folded == wanted || folded.starts_with(wanted + U'\\');
    });
}

Result<void> FileRegistry::WriteValue(RegistryRoot root, std::string_view key,
                                      std::string_view name, std::string_view value) {
    const NamedValue change{std::string(name), std::string(value)};
    return ChangeValues(root, key, {&change, 1});
}

Result<void> FileRegistry::ChangeValues(RegistryRoot root, std::string_view key,
                                        std::span<const NamedValue> values) {
    const std::string section = SectionOf(root, key);
    for (const NamedValue& value : values) {
        if (!IniText::CanHold(section, WrittenName(value.name), Escaped(value.text.value_or("")))) {
            return SystemFailure(EINVAL);
        }
    }
    const std::vector<NamedValue> kept(values.begin(), values.end());
    return Change([section, kept](IniText& ini) {
        bool changed = false;
        for (const auto& [name, text] : kept) {
            changed |= text ? ini.Set(section, WrittenName(name), Escaped(*text))
                            : ini.Erase(section, WrittenName(name));
        }
        return changed;
    });
}

Result<void> FileRegistry::Change(const ProfileEdit& edit) {
    if (path_.empty()) return SystemFailure(ENOENT);
    // Most changes at a program's start change nothing: those need neither lock nor folder.
    Result<IniText> now = ReadProfile(files_, path_);
    if (!now) return tl::unexpected(now.error());
    if (putOff_.empty() && !edit(*now)) return {};

    files_.MakeFolder(std::string(FolderOf(path_)));
    const Result<FileHandle> lock = LockFile(path_ + ".lock", patience_);
    if (lock) {
        putOff_.push_back(edit);
        return MakePutOff();
    }
    if (lock.error().number != EWOULDBLOCK) return tl::unexpected(lock.error());
    // A session that was stopped in the middle of a change must not stop this one for good.
    patience_ = {};
    putOff_.push_back(edit);
    return {};
}

Result<void> FileRegistry::MakePutOff() {
    Result<void> made = ChangeProfile(files_, path_, [this](IniText& ini) {
        bool changed = false;
        for (const ProfileEdit& edit : putOff_) {
            changed |= edit(ini);
        }
        return changed;
    });
    if (made) putOff_.clear();
    return made;
}

bool FileRegistry::CatchUp() {
    constexpr std::chrono::milliseconds kPatience{2000};
    patience_ = kPatience;
    if (putOff_.empty()) return true;
    const Result<FileHandle> lock = LockFile(path_ + ".lock", {});
    if (!lock) return lock.error().number != EWOULDBLOCK;
    static_cast<void>(MakePutOff());
    return true;
}

}  // namespace kestrel::system
