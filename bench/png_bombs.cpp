// PNG files that are small and unpack to a great deal, and what reading them takes:
// png_bombs <folder> writes them; png_bombs <folder> <kestrel-icon> also lets the program list and
// convert each of them and prints its peak memory and processor time.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <zlib.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;

constexpr unsigned char kPaeth = 4;  // the slowest way to store a row
constexpr std::uint32_t kOrdinary = 0;
constexpr std::uint32_t kInterlaced = 1;

// A picture whose bytes are all alike. Colour types: 0 grey, 3 palette, 6 RGB and alpha.
struct Bomb {
    const char* name;
    std::uint32_t width, height;
    unsigned char depth, colorType, interlace;
    unsigned samples;  // a pixel
};
constexpr Bomb kBombs[] = {
    {"8192x8192-1bit", 8192, 8192, 1, 0, kOrdinary, 1},
    {"8192x8192-1bit-interlaced", 8192, 8192, 1, 0, kInterlaced, 1},
    {"8192x8192-palette", 8192, 8192, 8, 3, kOrdinary, 1},
    {"8192x8192-grey16-interlaced", 8192, 8192, 16, 0, kInterlaced, 1},
    {"8192x8192-rgba", 8192, 8192, 8, 6, kOrdinary, 4},
    {"8192x8192-rgba-interlaced", 8192, 8192, 8, 6, kInterlaced, 4},
    {"8192x4096-rgba16", 8192, 4096, 16, 6, kOrdinary, 4},
    {"8192x4096-rgba16-interlaced", 8192, 4096, 16, 6, kInterlaced, 4},
    {"8192x8192-rgba16", 8192, 8192, 16, 6, kOrdinary, 4},
};

void Append(Bytes& bytes, std::uint32_t number) {
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<unsigned char>(number >> shift));
}

void AppendChunk(Bytes& file, std::string_view name, const Bytes& content) {
    Append(file, static_cast<std::uint32_t>(content.size()));
    const std::size_t start = file.size();
    file.insert(file.end(), name.begin(), name.end());
    file.insert(file.end(), content.begin(), content.end());
    const auto length = static_cast<uInt>(file.size() - start);
    Append(file, static_cast<std::uint32_t>(crc32(0, &file[start], length)));
}

// Compresses what is put in without ever holding it whole.
class Packer {
  public:
    Packer() { deflateInit(&stream_, Z_BEST_COMPRESSION); }
    ~Packer() { deflateEnd(&stream_); }
    Packer(const Packer&) = delete;
    Packer& operator=(const Packer&) = delete;

    void Put(Bytes bytes) { Deflate(bytes, Z_NO_FLUSH); }
    Bytes Finish() {
        Bytes nothing(1);
        stream_.avail_in = 0;
        Deflate(nothing, Z_FINISH);
        return packed_;
    }

  private:
    void Deflate(Bytes& bytes, int flush) {
        stream_.next_in = bytes.data();
        stream_.avail_in = flush == Z_FINISH ? 0 : static_cast<uInt>(bytes.size());
        do {
            Bytes room(1U << 16);
            stream_.next_out = room.data();
            stream_.avail_out = static_cast<uInt>(room.size());
            deflate(&stream_, flush);
            packed_.insert(packed_.end(), room.begin(), room.end() - stream_.avail_out);
        } while (stream_.avail_out == 0);
    }

    z_stream stream_{};
    Bytes packed_;
};

void PackRows(Packer& packer, const Bomb& bomb, std::uint32_t width, std::uint32_t height) {
    Bytes row(1 + (std::size_t{width} * bomb.samples * bomb.depth + 7) / 8, 0);
    row[0] = kPaeth;
    for (std::uint32_t y = 0; y < height && width > 0; ++y)
        packer.Put(row);
}

Bytes PackedPixels(const Bomb& bomb) {
    // First pixel and distance of the seven passes, across and down.
    constexpr std::uint32_t kPasses[][4] = {{0, 8, 0, 8}, {4, 8, 0, 8}, {0, 4, 4, 8}, {2, 4, 0, 4},
                                            {0, 2, 2, 4}, {1, 2, 0, 2}, {0, 1, 1, 2}};
    Packer packer;
    if (bomb.interlace == kOrdinary) PackRows(packer, bomb, bomb.width, bomb.height);
    for (const auto& [x, across, y, down] : kPasses) {
        if (bomb.interlace == kInterlaced)
            PackRows(packer, bomb, (bomb.width - x + across - 1) / across,
                     (bomb.height - y + down - 1) / down);
    }
    return packer.Finish();
}

Bytes Start(const Bomb& bomb) {
    Bytes file = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    Bytes header;
    Append(header, bomb.width);
    Append(header, bomb.height);
    header.insert(header.end(), {bomb.depth, bomb.colorType, 0, 0, bomb.interlace});
    AppendChunk(file, "IHDR", header);
    if (bomb.colorType == 3) AppendChunk(file, "PLTE", Bytes(768, 0x40));
    return file;
}

Bytes Whole(Bytes file, const Bytes& pixels) {
    AppendChunk(file, "IDAT", pixels);
    AppendChunk(file, "IEND", {});
    return file;
}

// A small picture behind two million empty texts.
Bytes ManyChunks(const Bomb& small) {
    Bytes file = Start(small);
    for (int i = 0; i < 2'000'000; ++i)
        AppendChunk(file, "tEXt", {'a', 0});
    return Whole(file, PackedPixels(small));
}

// A small picture with a colour profile and a text that unpack to a gigabyte each.
Bytes PackedTexts(const Bomb& small) {
    Packer packer;
    for (int i = 0; i < 1024; ++i)
        packer.Put(Bytes(1U << 20));
    const Bytes packed = packer.Finish();
    Bytes file = Start(small);
    for (const char* name : {"iCCP", "zTXt"}) {
        Bytes content = {'a', 0, 0};
        content.insert(content.end(), packed.begin(), packed.end());
        AppendChunk(file, name, content);
    }
    return Whole(file, PackedPixels(small));
}

// An icon file of 300 images of 1024 x 1024 pixels of 16 bits, each without its last rows.
Bytes CutImages() {
    constexpr std::uint32_t kImages = 300;
    const Bomb bomb{"", 1024, 1024, 16, 6, kOrdinary, 4};
    Packer packer;
    PackRows(packer, bomb, bomb.width, bomb.height - 1);
    const Bytes image = Whole(Start(bomb), packer.Finish());
    const auto word = [](Bytes& file, std::size_t number) {
        file.push_back(static_cast<unsigned char>(number));
        file.push_back(static_cast<unsigned char>(number >> 8));
    };
    Bytes file = {0, 0, 1, 0};
    word(file, kImages);
    for (std::size_t i = 0; i < kImages; ++i) {
        const std::size_t offset = 6 + 16 * std::size_t{kImages} + i * image.size();
        file.insert(file.end(), {0, 0, 0, 0, 1, 0, 32, 0});
        for (const std::size_t number : {image.size(), offset}) {
            word(file, number);
            word(file, number >> 16);
        }
    }
    for (std::uint32_t i = 0; i < kImages; ++i)
        file.insert(file.end(), image.begin(), image.end());
    return file;
}

void Write(const std::string& path, const Bytes& bytes) {
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
}

// In a process of its own, whose memory does not count for the program that is run later.
template <typename Work>
int Apart(Work work, rusage* usage = nullptr) {
    std::fflush(stdout);
    const pid_t process = fork();
    if (process == 0) {
        work();
        _exit(0);
    }
    int status = 0;
    wait4(process, &status, 0, usage);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void WriteAll(const std::string& folder) {
    for (const Bomb& bomb : kBombs)
        Write(folder + bomb.name + ".png", Whole(Start(bomb), PackedPixels(bomb)));
    const Bomb small{"", 33, 33, 8, 6, kOrdinary, 4};
    Write(folder + "many-chunks.png", ManyChunks(small));
    Write(folder + "packed-texts.png", PackedTexts(small));
    Write(folder + "cut-images.ico", CutImages());
}

struct Cost {
    double megabytes = 0;
    double milliseconds = 0;
    int exitCode = 0;
};

// Runs a program, whose output is dropped.
Cost CostOf(std::vector<std::string> words) {
    std::vector<char*> arguments(words.size() + 1);
    std::ranges::transform(words, arguments.begin(), [](std::string& word) { return word.data(); });
    rusage usage{};
    const auto run = [&] {
        if (std::freopen("/dev/null", "w", stdout) != nullptr &&
            std::freopen("/dev/null", "w", stderr) != nullptr)
            execv(arguments[0], arguments.data());
        _exit(127);
    };
    const int exitCode = Apart(run, &usage);
    const auto seconds = static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec);
    const auto micros = static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec);
    return {static_cast<double>(usage.ru_maxrss) / 1024, seconds * 1e3 + micros / 1e3, exitCode};
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc != 2 && argc != 3) return 2;
    const std::string folder = argv[1];
    if (Apart([&] { WriteAll(folder + "/"); }) != 0) return 1;
    if (argc == 2) return 0;
    for (const auto& file : std::filesystem::directory_iterator(folder)) {
        std::printf("%-32s", file.path().filename().c_str());
        const std::string path = file.path();
        for (const Cost& cost : {CostOf({argv[2], "info", path}),
                                 CostOf({argv[2], "convert", "--format=png", path, "-"})})
            std::printf(" | %5.1f MB %5.0f ms  exit %d", cost.megabytes, cost.milliseconds,
                        cost.exitCode);
        std::puts("");
    }
}
