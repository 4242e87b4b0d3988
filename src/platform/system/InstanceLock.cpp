#include "platform/system/InstanceLock.h"

#include <cerrno>
#include <cstdlib>

namespace kestrel::system {
namespace {

std::string_view EnvironmentText(const char* name) {
    const char* text = std::getenv(name);
    return text == nullptr ? std::string_view() : text;
}

bool IsPlain(char letter) {
    return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
           (letter >= '0' && letter <= '9') || letter == '-' || letter == '.';
}

std::string FileNamePart(std::string_view text) {
    std::string part(text);
    for (char& letter : part) {
        if (!IsPlain(letter)) letter = '_';
    }
    return part;
}

}  // namespace

std::optional<InstanceLock> InstanceLock::Take(const std::string& folder, std::string_view program,
                                               std::string_view display) {
    if (folder.empty()) return InstanceLock(FileHandle());
    const std::string path =
        folder + "/" + FileNamePart(program) + "-" + FileNamePart(display) + ".lock";
    Result<FileHandle> file = LockFile(path, std::chrono::milliseconds::zero());
    if (file) return InstanceLock(std::move(*file));
    if (file.error().number == EWOULDBLOCK) return std::nullopt;
    return InstanceLock(FileHandle());
}

std::string CurrentDisplay() {
    const std::string_view wayland = EnvironmentText("WAYLAND_DISPLAY");
    if (!wayland.empty()) return std::string(wayland);
    const std::string_view display = EnvironmentText("DISPLAY");
    const std::size_t colon = display.rfind(':');
    if (colon == std::string_view::npos) return std::string(display);
    return std::string(display.substr(0, display.find('.', colon)));
}

}  // namespace kestrel::system
