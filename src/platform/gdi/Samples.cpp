#include "platform/gdi/Samples.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "platform/gdi/IconPlanes.h"

namespace kestrel::gdi {

namespace {

int SourceOf(int i, int from, int to) {
    return static_cast<int>(std::int64_t{i} * from / to);
}

std::vector<int> Stretch(int from, int to) {
    std::vector<int> places(static_cast<std::size_t>(to));
    int i = 0;
    for (int& place : places)
        place = SourceOf(i++, from, to);
    return places;
}

// What every length up to 32 reads of this one.
std::vector<int> ForEveryIcon(int length) {
    std::vector<int> places;
    for (int to = 1; to <= kIconSize && length > 0; ++to)
        std::ranges::copy(Stretch(length, to), std::back_inserter(places));
    std::ranges::sort(places);
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}

// Where these places stand among those that are kept.
void FindAmong(const std::vector<int>& kept, std::vector<int>& places) {
    for (int& place : places)
        place = static_cast<int>(std::ranges::lower_bound(kept, place) - kept.begin());
}

void Take(const Surface& from, const Samples& samples, Surface& to) {
    for (int y = 0; y < to.Height(); ++y) {
        const auto row = from.Row(samples.rows[static_cast<std::size_t>(y)]);
        std::ranges::transform(samples.columns, to.Row(y).begin(),
                               [row](int x) { return row[static_cast<std::size_t>(x)]; });
    }
}

}  // namespace

Size SizeWithin(Size size, int side) {
    const int longer = std::max(size.width, size.height);
    if (longer <= side) return size;
    return {std::max(SourceOf(size.width, side, longer), 1),
            std::max(SourceOf(size.height, side, longer), 1)};
}

Samples StretchSamples(Size from, Size to) {
    return {Stretch(from.width, to.width), Stretch(from.height, to.height)};
}

SampledPicture::SampledPicture(Size size)
    : size_(size),
      kept_{ForEveryIcon(size.width), ForEveryIcon(size.height)},
      pixels_(static_cast<int>(kept_.columns.size()), static_cast<int>(kept_.rows.size())) {}

SampledPicture::SampledPicture(const Surface& picture)
    : SampledPicture(Size{picture.Width(), picture.Height()}) {
    Take(picture, kept_, pixels_);
}

Surface SampledPicture::In(Size size) const {
    Samples samples = StretchSamples(size_, size);
    FindAmong(kept_.columns, samples.columns);
    FindAmong(kept_.rows, samples.rows);
    Surface stretched(size.width, size.height);
    Take(pixels_, samples, stretched);
    return stretched;
}

}  // namespace kestrel::gdi
