#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <string>

#include "platform/Result.h"

namespace kestrel::system {

inline std::string ContentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// Its folder is made as needed.
inline void MakeFile(const std::filesystem::path& path, const std::string& content) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

// 0 for a success.
template <typename Value>
int NumberOf(const Result<Value>& result) {
    return result ? 0 : result.error().number;
}

inline unsigned ModeOf(const std::string& path) {
    return static_cast<unsigned>(std::filesystem::status(path).permissions());
}

// Each test has a folder of its own, gone afterwards.
class TemporaryFolder : public testing::Test {
  protected:
    TemporaryFolder() {
        std::string name = testing::TempDir() + "system_test_XXXXXX";
        folder_ = mkdtemp(name.data());
    }
    ~TemporaryFolder() override { std::filesystem::remove_all(folder_); }

    std::string Path(const std::string& name) const { return folder_ + "/" + name; }

    std::set<std::string> Names() const {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder_))
            names.insert(entry.path().filename());
        return names;
    }

    std::string folder_;
};

}  // namespace kestrel::system
