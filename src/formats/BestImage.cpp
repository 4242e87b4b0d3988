#include "formats/BestImage.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>

namespace kestrel::formats {
namespace {

constexpr int kWantedSide = 32;

// Smaller suits better. 32 x 32 has distance 0, which no other size has.
auto Rank(const ImageEntry& entry) {
    const ImageInfo& info = entry.info;
    const int distance =
        std::max(std::abs(info.width - kWantedSide), std::abs(info.height - kWantedSide));
    return std::tuple(distance, -info.width * info.height, -info.bitsPerPixel);
}

auto Place(const ImageEntry& entry) {
    return std::tuple(entry.offset, entry.info.height);
}

}  // namespace

std::vector<ImageEntry> BestFirst(std::vector<ImageEntry> entries) {
    std::vector<std::size_t> order(entries.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return std::tuple(Place(entries[a]), a) < std::tuple(Place(entries[b]), b);
    });
    // Of several entries for one image only the first stays.
    const auto repeats = std::unique(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return Place(entries[a]) == Place(entries[b]);
    });
    order.erase(repeats, order.end());
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return std::tuple(Rank(entries[a]), a) < std::tuple(Rank(entries[b]), b);
    });
    std::vector<ImageEntry> best;
    best.reserve(order.size());
    for (const std::size_t i : order)
        best.push_back(entries[i]);
    return best;
}

}  // namespace kestrel::formats
