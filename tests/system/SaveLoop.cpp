// Saves two contents in turn to the file it is given until it is killed. Prints one byte first.

#include <unistd.h>

#include <cstdint>
#include <vector>

#include "platform/system/DiskFiles.h"

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    constexpr std::size_t kIconFileSize = 3262;
    const std::vector<std::uint8_t> contents[] = {
        std::vector<std::uint8_t>(kIconFileSize, std::uint8_t{0x11}),
        std::vector<std::uint8_t>(kIconFileSize, std::uint8_t{0xEE})};
    kestrel::system::DiskFiles files;
    if (write(STDOUT_FILENO, "r", 1) != 1) return 1;
    for (unsigned turn = 1;; ++turn) {
        if (!files.ReplaceFile(argv[1], contents[turn % 2])) return 1;
    }
}
