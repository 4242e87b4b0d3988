#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

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

// Of a child that ends, or -1 when a signal ended it.
inline int ExitStatus(pid_t child) {
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

inline struct stat StatusOf(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
    return status;
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

    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder_))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    std::string folder_;
};

}  // namespace kestrel::system
