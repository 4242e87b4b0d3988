#include "tools/SystemInformation.h"

#include <algorithm>
#include <array>
#include <vector>

#include "i18n/Messages.h"

namespace kestrel::tools {

namespace {

struct Viewer {
    const char* program = nullptr;
    const char* argument = nullptr;
};

// Those that tell most of the machine come first.
constexpr std::array kViewers{
    Viewer{"hardinfo2"},   Viewer{"hardinfo"},
    Viewer{"kinfocenter"}, Viewer{"gnome-control-center", "info-overview"},
    Viewer{"xfce4-about"}, Viewer{"lxqt-about"},
    Viewer{"mate-about"}};

}  // namespace

// A text of the local machine as far as a buffer of 1,024 bytes takes it: one that does not fit
// with the NUL at its end is not read, and what follows a NUL does not count.
std::optional<std::string> SystemInformation::ReadValue(std::string_view key,
                                                        std::string_view name) {
    constexpr std::size_t kBufferBytes = 1024;
    auto value = registry_.ReadValue(system::RegistryRoot::LocalMachine, key, name);
    if (!value || value->size() >= kBufferBytes) return std::nullopt;
    value->resize(std::min(value->find('\0'), value->size()));
    return value;
}

void SystemInformation::Start() {
    if (StartAny()) return;
    boxes_.Show(services::BoxIcon::Information, services::BoxButtons::Ok,
                std::string(i18n::kNoSystemInformation.Now()), std::string(i18n::kProgramName));
}

bool SystemInformation::StartAny() {
    if (const auto program = ReadValue("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH"))
        return shell_.RunProgram(*program, {}).has_value();
    if (const auto folder = ReadValue("SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO")) {
        const std::string program = *folder + "\\MSINFO32.EXE";
        return files_.FileExists(program) && shell_.RunProgram(program, {}).has_value();
    }
    return std::ranges::any_of(kViewers, [this](const Viewer& viewer) {
        std::vector<std::string> arguments;
        if (viewer.argument != nullptr) arguments.emplace_back(viewer.argument);
        return shell_.RunProgram(viewer.program, arguments).has_value();
    });
}

}  // namespace kestrel::tools
