#include "formats/NeIcons.h"

#include <algorithm>

#include "formats/ProgramHeader.h"
#include "formats/ResourceIcons.h"
#include "formats/Utf16.h"

namespace kestrel::formats {
namespace {

constexpr std::uint16_t kSignature = 0x454E;  // "NE"
constexpr std::uint16_t kForOs2 = 1;

// In the header: where two tables lie, from the header's start, and the system it is made for.
constexpr std::size_t kHeaderSize = 64;
constexpr std::uint64_t kResourceTable = 0x24;
constexpr std::uint64_t kResidentNames = 0x26;
constexpr std::uint64_t kTargetSystem = 0x36;

// A block of the resource table: type, count and 4 bytes more, then entries.
constexpr std::uint64_t kBlockHead = 8;
constexpr std::uint64_t kEntrySize = 12;
// Set in types and names that are numbers.
constexpr std::uint16_t kIsNumber = 0x8000;
// Offsets and lengths are 16 bits wide and count units of this many bits' width at most.
constexpr std::uint16_t kWidestShift = 31;
// More blocks and entries than the table of any program has.
constexpr std::size_t kMostSteps = 65536;

using Header = SourceRecord<kHeaderSize>;

// Reads the table block by block; a type may have several.
class ResourceTable {
  public:
    ResourceTable(SourceReader& file, std::uint64_t start)
        : file_(file), start_(start), shift_(file.Record<2>(start).U16(0)) {
        std::uint64_t at = start + 2;
        for (std::size_t steps = 0; shift_ <= kWidestShift && steps < kMostSteps; ++steps) {
            const auto head = file.Record<kBlockHead>(at);
            const std::uint16_t type = head.U16(0);
            if (type == 0) break;
            const std::uint64_t count = std::min<std::uint64_t>(head.U16(2), kMostSteps - steps);
            at += kBlockHead;
            if (type == (kIsNumber | kIconResource)) ReadEntries(at, count, images);
            if (type == (kIsNumber | kIconGroupResource)) ReadEntries(at, count, groups);
            at += count * kEntrySize;
            steps += static_cast<std::size_t>(count);
        }
    }

    std::vector<IconPlace> groups;
    std::vector<IconPlace> images;

  private:
    void ReadEntries(std::uint64_t at, std::uint64_t count, std::vector<IconPlace>& places) {
        const auto bytes = file_.Part({at, count * kEntrySize});
        for (std::uint64_t entry = 0; entry + kEntrySize <= bytes.size(); entry += kEntrySize) {
            const ByteReader fields(ByteReader(bytes).Part(entry, kEntrySize));
            const Extent data = file_.Inside(
                {std::uint64_t{fields.U16(0)} << shift_, std::uint64_t{fields.U16(2)} << shift_});
            if (data.size == 0) continue;
            const std::uint16_t name = fields.U16(6);
            const bool named = (name & kIsNumber) == 0;
            places.push_back({static_cast<std::uint32_t>(data.offset),
                              static_cast<std::uint32_t>(data.size),
                              named ? static_cast<std::uint32_t>(start_ + name)
                                    : std::uint32_t{name} & ~std::uint32_t{kIsNumber},
                              named});
        }
    }

    SourceReader& file_;
    std::uint64_t start_;
    std::uint16_t shift_;
};

}  // namespace

bool IsNe(SourceReader& file) {
    const auto header = ProgramHeader(file);
    if (!header) return false;
    const Header fields = file.Record<kHeaderSize>(*header);
    return fields.U16(0) == kSignature && fields.bytes[kTargetSystem] != kForOs2;
}

IconTable ListNe(SourceReader& file) {
    const std::uint64_t start = ProgramHeader(file).value_or(0);
    const Header header = file.Record<kHeaderSize>(start);
    const std::uint16_t resources = header.U16(kResourceTable);
    // Programs without resources have the next table in their place.
    if (resources == 0 || resources == header.U16(kResidentNames)) return {};
    ResourceTable table(file, start + resources);
    return ListResources(std::move(table.groups), std::move(table.images));
}

std::string NeText(SourceReader& file, std::uint64_t offset) {
    const std::uint8_t length = file.Record<1>(offset).bytes[0];
    std::string text;
    for (const std::uint8_t character : file.Part({offset + 1, length}))
        AppendUtf8(text, character);
    return text;
}

}  // namespace kestrel::formats
