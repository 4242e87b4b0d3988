#include "formats/BestImage.h"

#include <algorithm>
#include <cstdlib>
#include <set>
#include <tuple>
#include <utility>

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

}  // namespace

std::vector<ImageEntry> WithoutRepeats(std::vector<ImageEntry> entries) {
    std::set<std::pair<std::size_t, int>> places;
    std::erase_if(entries, [&](const ImageEntry& entry) {
        return !places.insert({entry.offset, entry.info.height}).second;
    });
    return entries;
}

std::vector<ImageEntry> BestFirst(std::vector<ImageEntry> entries) {
    auto best = WithoutRepeats(std::move(entries));
    std::ranges::stable_sort(
        best, [](const ImageEntry& a, const ImageEntry& b) { return Rank(a) < Rank(b); });
    return best;
}

std::tuple<bool, int, int> RankForSide(const ImageInfo& info, int side) {
    const int own = std::max(info.width, info.height);
    return {own < side, own < side ? -own : own, -info.bitsPerPixel};
}

}  // namespace kestrel::formats
