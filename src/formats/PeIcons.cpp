#include "formats/PeIcons.h"

#include <algorithm>
#include <optional>

#include "formats/ProgramHeader.h"
#include "formats/ResourceIcons.h"
#include "formats/Utf16.h"

namespace kestrel::formats {
namespace {

constexpr std::uint32_t kSignature = 0x00004550;  // "PE", 0, 0
// After the signature: the file header, the optional header and the section table.
constexpr std::uint64_t kFileHeader = 4;
constexpr std::uint64_t kOptionalHeader = 24;
constexpr std::uint16_t kMagic32 = 0x10B;
constexpr std::uint16_t kMagic64 = 0x20B;
// In the optional header; the second has wider addresses before the data directories.
constexpr std::uint64_t kHeadersSize = 60;
constexpr std::uint64_t kDirectories32 = 96;
constexpr std::uint64_t kDirectories64 = 112;
constexpr std::uint64_t kResourceDirectory = 2;

constexpr std::uint64_t kSectionSize = 40;
// The system loads no program with more.
constexpr std::uint64_t kMostSections = 96;

// Resource compilers allow a quarter of it.
constexpr std::uint16_t kLongestName = 1024;

// A node of the resource tree: 16 bytes, then entries of 8.
constexpr std::uint64_t kNodeHead = 16;
constexpr std::uint64_t kNodeEntry = 8;
// The highest bit of an entry's fields: it has a name in place of a number, it leads to a node.
constexpr std::uint32_t kHighBit = 0x80000000;

// Where addresses of the loaded program lie in its file.
class AddressMap {
  public:
    AddressMap(SourceReader& file, std::uint64_t table, std::uint64_t count,
               std::uint32_t headersSize)
        : headersSize_(headersSize) {
        const auto bytes = file.Part({table, std::min(count, kMostSections) * kSectionSize});
        const ByteReader reader(bytes);
        for (std::uint64_t at = 0; at + kSectionSize <= bytes.size(); at += kSectionSize)
            sections_.push_back({reader.U32(at + 12), reader.U32(at + 16), reader.U32(at + 20)});
    }

    std::optional<std::uint64_t> OffsetOf(std::uint32_t address) const {
        for (const Section& section : sections_)
            if (address >= section.address && address - section.address < section.size)
                return std::uint64_t{section.offset} + (address - section.address);
        if (address < headersSize_) return address;
        return std::nullopt;
    }

  private:
    // Of what is loaded only the bytes that the file has.
    struct Section {
        std::uint32_t address;
        std::uint32_t size;
        std::uint32_t offset;
    };

    std::uint32_t headersSize_;
    std::vector<Section> sections_;
};

struct NodeEntry {
    std::uint32_t name;
    std::uint32_t target;
};

// The tree of resources: types, then names or numbers, then languages, then where the data is. Its
// three levels are walked one by one, so that a loop in it leads nowhere.
class ResourceTree {
  public:
    ResourceTree(SourceReader& file, const AddressMap& addresses, std::uint64_t root)
        : file_(file), addresses_(addresses), root_(root), types_(Node(0)) {}

    // All resources of a type in stored order, each in its first language.
    std::vector<IconPlace> Resources(std::uint32_t type) const {
        std::vector<IconPlace> found;
        const auto node = std::ranges::find(types_, type, &NodeEntry::name);
        if (node == types_.end() || (node->target & kHighBit) == 0) return found;
        const auto entries = Node(node->target);
        found.reserve(entries.size());
        for (const NodeEntry& entry : entries)
            if (const auto place = Place(entry)) found.push_back(*place);
        return found;
    }

    // Whether there is the type of resource that leads to the program's translations, "MUI".
    bool HasTranslations() const {
        return std::ranges::any_of(types_, [this](const NodeEntry& type) {
            if ((type.name & kHighBit) == 0) return false;
            const auto text = file_.Record<8>(Offset(type.name));
            return text.U16(0) == 3 && text.U16(2) == 'M' && text.U16(4) == 'U' &&
                   text.U16(6) == 'I';
        });
    }

  private:
    std::uint64_t Offset(std::uint32_t field) const { return root_ + (field & ~kHighBit); }

    std::vector<NodeEntry> Node(std::uint32_t field) const {
        const std::uint64_t at = Offset(field);
        const auto head = file_.Record<kNodeHead>(at);
        const std::uint64_t count = std::uint64_t{head.U16(12)} + head.U16(14);
        const auto bytes = file_.Part({at + kNodeHead, count * kNodeEntry});
        const ByteReader reader(bytes);
        std::vector<NodeEntry> entries(bytes.size() / kNodeEntry);
        for (std::size_t i = 0; i < entries.size(); ++i)
            entries[i] = {reader.U32(kNodeEntry * i), reader.U32(kNodeEntry * i + 4)};
        return entries;
    }

    std::optional<IconPlace> Place(const NodeEntry& entry) const {
        std::uint32_t target = entry.target;
        if ((target & kHighBit) != 0) {
            const auto languages = file_.Record<kNodeHead + kNodeEntry>(Offset(target));
            if (languages.U16(12) == 0 && languages.U16(14) == 0) return std::nullopt;
            target = languages.U32(kNodeHead + 4);
        }
        if ((target & kHighBit) != 0) return std::nullopt;
        const auto data = file_.Record<16>(Offset(target));
        const auto offset = addresses_.OffsetOf(data.U32(0));
        if (!offset || *offset >= file_.Size()) return std::nullopt;
        const bool named = (entry.name & kHighBit) != 0;
        const std::uint64_t name = named ? Offset(entry.name) : entry.name;
        if (name > UINT32_MAX) return std::nullopt;
        return IconPlace{static_cast<std::uint32_t>(*offset), data.U32(4),
                         static_cast<std::uint32_t>(name), named};
    }

    SourceReader& file_;
    const AddressMap& addresses_;
    std::uint64_t root_;
    std::vector<NodeEntry> types_;
};

}  // namespace

bool IsPe(SourceReader& file) {
    const auto header = ProgramHeader(file);
    return header && file.Record<4>(*header).U32(0) == kSignature;
}

IconTable ListPe(SourceReader& file) {
    const std::uint64_t header = ProgramHeader(file).value_or(0);
    const auto program = file.Record<kOptionalHeader - kFileHeader>(header + kFileHeader);
    const std::uint64_t optional = header + kOptionalHeader;
    const auto fields = file.Record<kDirectories64>(optional);
    const std::uint16_t magic = fields.U16(0);
    if (magic != kMagic32 && magic != kMagic64) return {};
    const std::uint64_t directories = magic == kMagic32 ? kDirectories32 : kDirectories64;
    if (fields.U32(directories - 4) <= kResourceDirectory) return {};
    // Its size is often 0 and never needed.
    const std::uint32_t resources =
        file.Record<8>(optional + directories + 8 * kResourceDirectory).U32(0);
    const AddressMap addresses(file, optional + program.U16(16), program.U16(2),
                               fields.U32(kHeadersSize));
    const auto root = addresses.OffsetOf(resources);
    if (resources == 0 || !root) return {};

    const ResourceTree tree(file, addresses, *root);
    IconTable table =
        ListResources(tree.Resources(kIconGroupResource), tree.Resources(kIconResource));
    // Newer systems keep what their own programs and libraries show in files of their own, whose
    // names end in ".mun"; what is left of the resources leads to the translations.
    table.elsewhere = tree.HasTranslations();
    return table;
}

std::string PeText(SourceReader& file, std::uint64_t offset) {
    const std::uint64_t units = std::min(file.Record<2>(offset).U16(0), kLongestName);
    return Utf8OfUtf16(file.Part({offset + 2, 2 * units}));
}

}  // namespace kestrel::formats
