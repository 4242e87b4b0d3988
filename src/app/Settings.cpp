#include "app/Settings.h"

#include "platform/system/Folders.h"
#include "platform/system/Profile.h"

namespace kestrel::app {

const std::string& Settings::File() {
    if (file_.empty()) {
        std::string folder = system::ApplicationFolder();
        if (!system::CanWriteIn(folder)) folder = system::ConfigFolder();
        file_ = folder + "/" + system::ExecutableName() + ".ini";
    }
    return file_;
}

std::string Settings::ReadSetting(std::string_view section, std::string_view key,
                                  std::string_view otherwise) {
    return system::ReadProfileString(files_, section, key, otherwise, File());
}

std::string ReadSavedLanguage(Settings& settings) {
    return settings.ReadSetting("Settings", "Language", "");
}

}  // namespace kestrel::app
