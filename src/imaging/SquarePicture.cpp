#include "imaging/SquarePicture.h"

#include <algorithm>

namespace kestrel::imaging {

namespace {

gdi::Size SizeIn(int side, gdi::Size size) {
    const int longer = std::max(size.width, size.height);
    return {std::max(size.width * side / longer, 1), std::max(size.height * side / longer, 1)};
}

}  // namespace

SquarePicture::SquarePicture(gdi::Size from, int side)
    : side_(side), size_(SizeIn(side, from)), averager_(from, size_) {}

gdi::Surface SquarePicture::Square() const {
    gdi::Surface picture = averager_.Average();
    if (size_ == gdi::Size{side_, side_}) return picture;
    gdi::Surface square(side_, side_, gdi::kBlack);
    const int left = (side_ - size_.width) / 2;
    const int top = (side_ - size_.height) / 2;
    for (int y = 0; y < size_.height; ++y)
        std::ranges::copy(picture.Row(y), square.Row(top + y).begin() + left);
    return square;
}

}  // namespace kestrel::imaging
