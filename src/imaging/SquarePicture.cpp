#include "imaging/SquarePicture.h"

#include <algorithm>

namespace kestrel::imaging {

gdi::Rect PlaceInSquare(gdi::Size picture, int side) {
    const int longer = std::max(picture.width, picture.height);
    const int width = std::max(picture.width * side / longer, 1);
    const int height = std::max(picture.height * side / longer, 1);
    return {(side - width) / 2, (side - height) / 2, width, height};
}

SquarePicture::SquarePicture(gdi::Size from, int side)
    : side_(side),
      place_(PlaceInSquare(from, side)),
      averager_(from, {place_.width, place_.height}) {}

gdi::Surface SquarePicture::Square() const {
    gdi::Surface picture = averager_.Average();
    gdi::Surface square(side_, side_, gdi::kBlack);
    if (place_ == square.Bounds()) return picture;
    for (int y = 0; y < place_.height; ++y)
        std::ranges::copy(picture.Row(y), square.Row(place_.top + y).begin() + place_.left);
    return square;
}

}  // namespace kestrel::imaging
