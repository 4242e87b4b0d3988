#include "formats/AniFrames.h"

#include <algorithm>
#include <optional>

#include "formats/IconDirectory.h"
#include "formats/StoredImage.h"

namespace kestrel::formats {
namespace {

constexpr std::uint32_t Name(const char (&text)[5]) {
    std::uint32_t name = 0;
    for (int i = 3; i >= 0; --i)
        name = name << 8 | static_cast<std::uint8_t>(text[i]);
    return name;
}

constexpr std::uint64_t kFileHead = 12;  // "RIFF", size, type
constexpr std::uint64_t kChunkHead = 8;  // name, size
constexpr std::uint64_t kListType = 4;   // after a list's head
constexpr std::uint64_t kStepCount = 8;  // in the animation header
constexpr std::uint64_t kStep = 4;       // in a sequence
constexpr std::size_t kMostChunks = 1U << 17;

// What the file has of each chunk that matters, wherever it stands.
struct Chunks {
    std::optional<Extent> header;
    std::optional<Extent> sequence;
    std::vector<Extent> frames;
};

// Walks from chunk to chunk and into every list as if its chunks stood outside: lists often tell a
// wrong length, and what the file says of its own counts for nothing.
class ChunkWalk {
  public:
    explicit ChunkWalk(SourceReader& file) : file_(file) {}

    Chunks Collect() {
        std::uint64_t at = kFileHead;
        for (std::size_t walked = 0; walked < kMostChunks && at + kChunkHead <= file_.Size();
             ++walked) {
            const auto head = file_.Record<kChunkHead>(at);
            if (!IsName(head.U32(0))) {
                // Lost inside a list: what comes after it may still be read.
                if (listEnd_ <= at) break;
                at = listEnd_;
            } else if (head.U32(0) == Name("LIST")) {
                listEnd_ = NextChunk(at, head.U32(4));
                at += kChunkHead + kListType;
            } else {
                Take(head.U32(0), file_.Inside({at + kChunkHead, head.U32(4)}));
                at = NextChunk(at, head.U32(4));
            }
        }
        return std::move(chunks_);
    }

  private:
    // All names are printable ASCII.
    static bool IsName(std::uint32_t name) {
        for (int i = 0; i < 4; ++i, name >>= 8)
            if ((name & 0xFF) < ' ' || (name & 0xFF) > '~') return false;
        return true;
    }

    bool IsChunk(std::uint64_t at) {
        const auto head = file_.Record<kChunkHead>(at);
        return IsName(head.U32(0)) && at + kChunkHead + head.U32(4) <= file_.Size();
    }

    // Chunks are filled up to an even length, which some writers forget.
    std::uint64_t NextChunk(std::uint64_t at, std::uint32_t size) {
        const std::uint64_t end = at + kChunkHead + size;
        if (size % 2 == 0) return end;
        return !IsChunk(end + 1) && IsChunk(end) ? end : end + 1;
    }

    // Of a second header or sequence nothing is known; the first counts. A sequence without a step
    // says nothing.
    void Take(std::uint32_t name, Extent data) {
        if (name == Name("icon")) chunks_.frames.push_back(data);
        if (name == Name("anih") && !chunks_.header) chunks_.header = data;
        if (name == Name("seq ") && !chunks_.sequence && data.size >= kStep)
            chunks_.sequence = data;
    }

    SourceReader& file_;
    Chunks chunks_;
    std::uint64_t listEnd_ = 0;
};

// The frame of each step, counted from 0. Without a sequence they follow each other.
std::vector<std::uint32_t> Steps(SourceReader& file, const Chunks& chunks) {
    std::vector<std::uint32_t> steps;
    if (chunks.sequence) {
        const std::uint64_t most = kMostIcons * kStep;
        const auto bytes =
            file.Part({chunks.sequence->offset, std::min(chunks.sequence->size, most)});
        for (std::size_t at = 0; at + kStep <= bytes.size(); at += kStep)
            steps.push_back(ByteReader(bytes).U32(at));
    } else {
        for (std::size_t i = 0; i < std::min(chunks.frames.size(), kMostIcons); ++i)
            steps.push_back(static_cast<std::uint32_t>(i));
    }
    // The header tells fewer steps at times, and none or too many in damaged files.
    if (chunks.header && chunks.header->size > kStepCount) {
        const std::uint32_t told = file.Record<4>(chunks.header->offset + kStepCount).U32(0);
        if (told > 0 && told < steps.size()) steps.resize(told);
    }
    return steps;
}

// A frame is an icon or cursor file of its own or a bare bitmap.
std::vector<ImageEntry> FrameImages(SourceReader& file, Extent frame) {
    if (IsDirectory(file, frame.offset)) return DirectoryImages(file, frame, kMostImagesEach);
    const auto image = ReadImageHead(file, frame, {});
    return image ? std::vector{*image} : std::vector<ImageEntry>{};
}

}  // namespace

bool IsAni(SourceReader& file) {
    const auto head = file.Record<kFileHead>(0);
    return head.U32(0) == Name("RIFF") && head.U32(8) == Name("ACON");
}

// The first step that cannot be drawn ends the animation.
IconTable ListAni(SourceReader& file) {
    const Chunks chunks = ChunkWalk(file).Collect();
    IconTable table;
    DrawableIcons drawable(file);
    std::vector<bool> drawn(chunks.frames.size());
    for (const std::uint32_t frame : Steps(file, chunks)) {
        if (frame >= chunks.frames.size()) break;
        const Extent place = chunks.frames[frame];
        if (!drawn[frame]) {
            const auto images = FrameImages(file, place);
            if (images.empty() ||
                !drawable.CanDraw(images.front(), [&] { return std::vector(images); }))
                break;
            drawn[frame] = true;
        }
        const auto step = static_cast<std::uint32_t>(table.icons.size()) + 1;
        table.icons.push_back({static_cast<std::uint32_t>(place.offset),
                               static_cast<std::uint32_t>(place.size), step});
    }
    return table;
}

std::vector<ImageEntry> StepImages(SourceReader& file, const IconTable& /*table*/,
                                   const IconPlace& step) {
    return FrameImages(file, step.Where());
}

}  // namespace kestrel::formats
