#include "app/Settings.h"

#include <unistd.h>

#include "platform/system/Folders.h"
#include "platform/system/Profile.h"

namespace kestrel::app {

const std::string& Settings::File() {
    if (file_.empty()) {
        std::string folder = system::ApplicationFolder();
        if (::access(folder.c_str(), W_OK) != 0) folder = system::ConfigFolder();
        file_ = folder + "/" + system::ExecutableName() + ".ini";
    }
    return file_;
}

std::string Settings::ReadSetting(std::string_view section, std::string_view key,
                                  std::string_view otherwise) {
    return system::ReadProfileString(files_, section, key, otherwise, File());
}

void Settings::WriteSetting(std::string_view section, std::string_view key,
                            std::string_view value) {
    static_cast<void>(system::WriteProfileString(files_, section, key, value, File()));
}

std::string ReadSavedLanguage(Settings& settings) {
    return settings.ReadSetting("Settings", "Language", "");
}

}  // namespace kestrel::app
