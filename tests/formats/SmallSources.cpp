#include "tests/formats/SmallSources.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>

#include "formats/ByteWriter.h"
#include "formats/LibraryWriter.h"

namespace kestrel::test {

ByteList Ico(const std::vector<ByteList>& images) {
    formats::ByteWriter out;
    out.Append(Hex("0000 0100"));
    out.U16(images.size());
    std::size_t offset = 6 + 16 * images.size();
    for (const ByteList& image : images) {
        out.Append(Hex("03020000 0100 1800"));
        out.U32(image.size());
        out.U32(offset);
        offset += image.size();
    }
    for (const ByteList& image : images)
        out.Append(image);
    return out.Take();
}

ByteList Pe() {
    const formats::ImageBytes bitmap{{3, 2, 24, false}, kDib};
    const formats::ImageBytes png{{1, 1, 32, true}, kPng};
    const formats::LibraryIcon icons[] = {{"aB", {bitmap, png}}, {"", {bitmap}}};
    return formats::LibraryBytes(icons).value();
}

ByteList Ne(unsigned shift) {
    const std::string one = "0302000001001800 48000000 ";
    struct {
        const char* block;
        const char* name;
        ByteList data;
    } const resources[] = {
        {"0380 0200 00000000", "0000 0180 00000000", kDib},
        {"", "0000 0280 00000000", kDib},
        {"0E80 0200 00000000", "0000 0780 00000000", Hex("0000 0100 0100" + one + "0100")},
        {"", "0000 4400 00000000", Hex("0000 0100 0200" + one + "0100" + one + "0200")}};
    formats::ByteWriter file;
    file.Append(Text("MZ"));
    file.FillTo(0x3C);
    file.U32(0x40);
    file.Append(Text("NE"));
    file.FillTo(0x40 + 0x24);
    file.Append(Hex("4000 9000"));  // resources at 0x80, names of functions at 0xD0
    file.FillTo(0x40 + 0x36);
    file.U8(2);
    file.FillTo(0x80);
    file.U16(shift);
    std::size_t end = 0x200;
    for (const auto& [block, name, data] : resources) {
        file.Append(Hex(block));
        file.U16(end >> shift);
        file.U16((data.size() + (1U << shift) - 1) >> shift);
        file.Append(Hex(name));
        end += 0x200;
    }
    file.Append(Hex("0000 024142"));
    end = 0x200;
    for (const auto& resource : resources) {
        file.FillTo(end);
        file.Append(resource.data);
        end += 0x200;
    }
    file.FillTo(end);
    return file.Take();
}

std::vector<std::filesystem::path> IconFiles() {
    std::vector<std::filesystem::path> files;
    const std::set<std::string> kinds{".ani", ".cur", ".dll", ".icl", ".ico"};
    for (const auto& entry : std::filesystem::directory_iterator(TEST_DATA))
        if (kinds.contains(entry.path().extension())) files.push_back(entry.path());
    return files;
}

ByteList ReadFile(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

ByteList Text(const std::string& text) {
    return {text.begin(), text.end()};
}

ByteList Chunk(const std::string& name, const ByteList& content) {
    formats::ByteWriter out;
    out.Append(Text(name));
    out.U32(content.size());
    out.Append(content);
    out.FillTo((out.Size() + 1) / 2 * 2);
    return out.Take();
}

Result<formats::IconSource> Open(const ByteList& file) {
    return formats::IconSource::Open(std::make_unique<system::MemoryBytes>(ByteList(file)), "file",
                                     formats::IconSource::Lists::Readable);
}

std::string Listing(const ByteList& file) {
    const auto source = Open(file);
    if (!source) return source.error().number == kIconsElsewhere ? "elsewhere" : "none";
    std::string text(formats::KindName(source->kind));
    for (std::size_t i = 0; i < source->count; ++i) {
        text += " " + *source->NameOf(i);
        char before = ':';
        const auto images = source->Images(i);
        for (const formats::ImageEntry& image : *images) {
            const formats::ImageInfo& info = image.info;
            text += before + std::to_string(info.width) + "x" + std::to_string(info.height) + "x" +
                    std::to_string(info.bitsPerPixel) + (info.png ? "p" : "");
            before = ',';
        }
        if (!source->Icon(i)) text += "!";
    }
    return text;
}

ByteList Patched(ByteList file, const std::vector<Patch>& patches) {
    for (const auto& [offset, bytes] : patches)
        std::ranges::copy(Hex(bytes), &file.at(offset));
    return file;
}

}  // namespace kestrel::test
