#pragma once

#include <string>
#include <string_view>

#include "platform/system/FileSystem.h"

namespace kestrel::settings {

// The settings file: named after the executable, in the application folder or, where that cannot
// be written, in the user's configuration folder. The path is worked out on first use. Another
// file may be named instead, an empty one is this. Failures are silent.
class Settings {
  public:
    explicit Settings(system::FileSystem& files) : files_(files) {}

    std::string ReadSetting(std::string_view section, std::string_view key,
                            std::string_view otherwise, const std::string& file = {});
    void WriteSetting(std::string_view section, std::string_view key, std::string_view value,
                      const std::string& file = {});

  private:
    const std::string& File();

    system::FileSystem& files_;
    std::string file_;
};

// The language chosen last lives in the settings file.
std::string ReadSavedLanguage(Settings& settings);
void SaveLanguage(Settings& settings, std::string_view code);

}  // namespace kestrel::settings
