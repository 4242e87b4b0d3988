#include "formats/LibraryWriter.h"

#include <algorithm>
#include <cerrno>

#include "formats/ResourceIcons.h"

namespace kestrel::formats {
namespace {

// Numbers in a group have 16 bits.
constexpr std::size_t kMostImages = 65535;
constexpr std::uint64_t kMostBytes = INT32_MAX;

constexpr std::size_t kFileAlignment = 0x200;
constexpr std::size_t kPage = 0x1000;
// The one section is loaded behind the page of the headers.
constexpr std::size_t kSectionAddress = kPage;

std::size_t RoundedUp(std::size_t size, std::size_t unit) {
    return (size + unit - 1) / unit * unit;
}

// A number in the headers; all others are 0.
struct HeaderField {
    std::size_t offset;
    std::size_t size;
    std::uint64_t value;
};

std::vector<std::uint8_t> Headers(std::size_t sectionBytes) {
    const std::size_t stored = RoundedUp(sectionBytes, kFileAlignment);
    const HeaderField fields[] = {
        {0x00, 2, 0x5A4D},           // "MZ"
        {0x3C, 4, 0x40},             // where the program's own header is
        {0x40, 2, 0x4550},           // "PE": processor,
        {0x44, 2, 0x14C},            //   386
        {0x46, 2, 1},                //   sections
        {0x54, 2, 224},              //   bytes of the optional header
        {0x56, 2, 0x2102},           //   a library of 32 bits
        {0x58, 2, 0x10B},            // optional header of 32 bits:
        {0x60, 4, stored},           //   initialised data
        {0x6C, 4, kSectionAddress},  //   code (there is none)
        {0x70, 4, kSectionAddress},  //   data
        {0x74, 4, 0x10000000},       //   where it likes to be loaded
        {0x78, 4, kPage},            //   alignment in memory
        {0x7C, 4, kFileAlignment},   //   and in the file
        {0x80, 2, 4},                //   version of the system
        {0x88, 2, 4},                //   and of its graphics
        {0x90, 4, kSectionAddress + RoundedUp(sectionBytes, kPage)},
        {0x94, 4, kFileAlignment},   //   bytes of all headers
        {0x9C, 2, 2},                //   with windows
        {0x9E, 2, 0x540},            //   may move, runs no data, throws nothing
        {0xB4, 4, 16},               //   data directories,
        {0xC8, 4, kSectionAddress},  //   the third of resources
        {0xCC, 4, sectionBytes},
        {0x138, 8, 0x637273722E},  // section ".rsrc":
        {0x140, 4, sectionBytes},
        {0x144, 4, kSectionAddress},
        {0x148, 4, stored},
        {0x14C, 4, kFileAlignment},  //   offset in the file
        {0x15C, 4, 0x40000040},      //   initialised data that is read
    };
    std::vector<std::uint8_t> headers(kFileAlignment);
    for (const HeaderField& field : fields)
        for (std::size_t i = 0; i < field.size; ++i)
            headers[field.offset + i] = static_cast<std::uint8_t>(field.value >> (8 * i));
    return headers;
}

struct Resource {
    std::string name;
    std::size_t number = 0;
    std::vector<std::uint8_t> bytes;
};

// Sizes in a tree of resources, and the bit that makes a field an offset in place of a number.
constexpr std::size_t kNodeHead = 16;
constexpr std::size_t kNodeEntry = 8;
constexpr std::size_t kDataEntry = 16;
constexpr std::size_t kDataAlignment = 4;
constexpr std::size_t kHighBit = 0x80000000;

// The tree of resources: a node with the types, one a type with its resources, one a resource with
// its one language; then where each one's data is, the texts of names, the data.
class ResourceSection {
  public:
    ResourceSection(std::span<const Resource> images, std::span<const Resource> groups) {
        const std::size_t count = images.size() + groups.size();
        languagesAt_ = 3 * kNodeHead + (2 + count) * kNodeEntry;
        placesAt_ = languagesAt_ + count * (kNodeHead + kNodeEntry);
        textsAt_ = placesAt_ + count * kDataEntry;
        dataAt_ = textsAt_;
        for (const Resource& group : groups)
            dataAt_ += 2 + 2 * group.name.size();
        dataAt_ = RoundedUp(dataAt_, kDataAlignment);
        WriteNode(types_, 0, 2);
        AddType(kIconResource, images);
        AddType(kIconGroupResource, groups);
    }

    std::vector<std::uint8_t> Bytes() {
        for (ByteWriter* part : {&resources_, &languages_, &places_, &texts_})
            types_.Append(part->Take());
        types_.FillTo(dataAt_);
        types_.Append(data_.Take());
        return types_.Take();
    }

  private:
    static void WriteNode(ByteWriter& out, std::size_t names, std::size_t numbers) {
        out.FillTo(out.Size() + 12);
        out.U16(names);
        out.U16(numbers);
    }
    static void WriteEntry(ByteWriter& out, std::size_t name, std::size_t target) {
        out.U32(name);
        out.U32(target);
    }

    // Those with names come before those with numbers.
    void AddType(std::uint32_t type, std::span<const Resource> resources) {
        constexpr std::size_t kTypes = kNodeHead + 2 * kNodeEntry;
        WriteEntry(types_, type, kHighBit | (kTypes + resources_.Size()));
        const auto named = static_cast<std::size_t>(std::ranges::count_if(
            resources, [](const Resource& resource) { return !resource.name.empty(); }));
        WriteNode(resources_, named, resources.size() - named);
        for (const Resource& resource : resources)
            Add(resource);
    }

    void Add(const Resource& resource) {
        const std::size_t name =
            resource.name.empty() ? resource.number : kHighBit | (textsAt_ + texts_.Size());
        WriteEntry(resources_, name, kHighBit | (languagesAt_ + languages_.Size()));
        WriteNode(languages_, 0, 1);
        WriteEntry(languages_, 0, placesAt_ + places_.Size());
        places_.U32(kSectionAddress + dataAt_ + data_.Size());
        places_.U32(resource.bytes.size());
        places_.FillTo(places_.Size() + 8);
        data_.Append(resource.bytes);
        data_.FillTo(RoundedUp(data_.Size(), kDataAlignment));
        if (resource.name.empty()) return;
        texts_.U16(resource.name.size());
        for (const char character : resource.name)
            texts_.U16(static_cast<std::uint8_t>(character));
    }

    std::size_t languagesAt_ = 0;
    std::size_t placesAt_ = 0;
    std::size_t textsAt_ = 0;
    std::size_t dataAt_ = 0;
    ByteWriter types_, resources_, languages_, places_, texts_, data_;
};

char InCapitals(char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

// What names the images of an icon by their numbers, which go on from the last icon's.
std::vector<std::uint8_t> GroupBytes(const LibraryIcon& icon, std::size_t firstNumber) {
    ByteWriter out;
    WriteDirectoryHead(out, icon.images.size());
    for (const ImageBytes& image : icon.images) {
        WriteDirectoryEntry(out, image);
        out.U16(firstNumber++);
    }
    return out.Take();
}

}  // namespace

Result<std::vector<std::uint8_t>> LibraryBytes(std::span<const LibraryIcon> icons) {
    std::vector<Resource> images, groups;
    std::uint64_t size = 0;
    for (std::size_t i = 0; i < icons.size(); ++i) {
        groups.push_back({icons[i].name, i + 1, GroupBytes(icons[i], images.size() + 1)});
        for (const ImageBytes& image : icons[i].images) {
            images.push_back({{}, images.size() + 1, image.bytes});
            size += image.bytes.size();
        }
    }
    if (icons.size() > kMostImages || images.size() > kMostImages || size > kMostBytes)
        return Fail(EFBIG, "The library would be too large");
    // The system looks names up by halving and in capitals.
    for (Resource& group : groups)
        std::ranges::transform(group.name, group.name.begin(), InCapitals);
    std::ranges::stable_sort(groups, [](const Resource& one, const Resource& other) {
        return !one.name.empty() && (other.name.empty() || one.name < other.name);
    });
    const auto section = ResourceSection(images, groups).Bytes();
    ByteWriter library;
    library.Append(Headers(section.size()));
    library.Append(section);
    library.FillTo(RoundedUp(library.Size(), kFileAlignment));
    return library.Take();
}

}  // namespace kestrel::formats
