// The least that listing, extracting or converting takes: a program that moves the same bytes and
// looks at none.
// file_floor map <file>                    maps it and touches every page
// file_floor copy <file> <folder> <files>  reads it and writes it as that many files
// file_floor each <list> <folder> <bytes>  reads each file of the list, writes so much of it there

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr std::size_t kPage = 4096;

int Map(int file, std::size_t size) {
    void* const bytes = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file, 0);
    if (bytes == MAP_FAILED) return 1;
    const auto* const first = static_cast<const volatile unsigned char*>(bytes);
    unsigned sum = 0;
    for (std::size_t at = 0; at < size; at += kPage)
        sum += first[at];
    std::printf("%u\n", sum);
    return 0;
}

int Copy(int file, std::size_t size, const std::string& folder, std::size_t files) {
    std::vector<char> bytes(size);
    if (read(file, bytes.data(), size) != static_cast<ssize_t>(size)) return 1;
    const std::size_t part = std::max<std::size_t>(size / files, 1);
    for (std::size_t i = 0; i < files && i * part < size; ++i) {
        const std::string name = folder + "/" + std::to_string(i);
        const int out = open(name.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
        if (out < 0 || write(out, &bytes[i * part], part) != static_cast<ssize_t>(part)) return 1;
        close(out);
    }
    return 0;
}

bool CopyStart(const std::string& name, const std::string& folder, std::size_t size) {
    std::array<char, 1U << 16> bytes{};
    const int in = open(name.c_str(), O_RDONLY | O_CLOEXEC);
    const bool whole = read(in, bytes.data(), bytes.size()) >= static_cast<ssize_t>(size);
    close(in);
    const std::string result = folder + name.substr(name.rfind('/'));
    const int out = open(result.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    const bool written = write(out, bytes.data(), size) == static_cast<ssize_t>(size);
    return close(out) == 0 && whole && written;
}

int CopyEach(const char* list, const std::string& folder, std::size_t size) {
    std::ifstream names(list);
    for (std::string name; std::getline(names, name);)
        if (!CopyStart(name, folder, size)) return 1;
    return 0;
}

}  // namespace

int main(int argc, char* argv[]) {
    const std::string_view what = argc > 2 ? argv[1] : "";
    const int file = what.empty() ? -1 : open(argv[2], O_RDONLY | O_CLOEXEC);
    struct stat status {};
    if (file < 0 || fstat(file, &status) < 0) return 2;
    const auto size = static_cast<std::size_t>(status.st_size);
    if (what == "map") return Map(file, size);
    const int files = argc > 4 ? std::atoi(argv[4]) : 0;
    if (what == "each" && files > 0)
        return CopyEach(argv[2], argv[3], static_cast<std::size_t>(files));
    return what == "copy" && files > 0 ? Copy(file, size, argv[3], static_cast<std::size_t>(files))
                                       : 2;
}
