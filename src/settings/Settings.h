#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "platform/system/FileSystem.h"

namespace kestrel::settings {

// The settings file. Another file may be named instead, an empty one is this. Failures are silent.
class Settings {
  public:
    Settings(system::FileSystem& files, std::string file) : files_(files), file_(std::move(file)) {}

    std::string ReadSetting(std::string_view section, std::string_view key,
                            std::string_view otherwise, const std::string& file = {});
    void WriteSetting(std::string_view section, std::string_view key, std::string_view value,
                      const std::string& file = {});

  private:
    const std::string& FileOr(const std::string& file) const { return file.empty() ? file_ : file; }

    system::FileSystem& files_;
    std::string file_;
};

// The language chosen last lives in the settings file.
std::string ReadSavedLanguage(Settings& settings);
void SaveLanguage(Settings& settings, std::string_view code);

}  // namespace kestrel::settings
