#include <cstdlib>
#include <vector>

#include "imaging/filters/FilterLoops.h"
#include "imaging/filters/Levels.h"
#include "imaging/filters/Routines.h"

namespace kestrel::filters {

namespace {

// What the nine values of a 3 x 3 square have in common.
struct Square {
    int mean = 0;
    // The sum of their distances from the mean.
    int spread = 0;
};

Square Measure(const Neighbourhood& at) {
    Square square{.mean = (at.Centre() + at.SumOfNeighbours()) / 9};
    for (int dy = -1; dy <= 1; ++dy) {
        for (int dx = -1; dx <= 1; ++dx)
            square.spread += std::abs(at(dx, dy) - square.mean);
    }
    return square;
}

// The squares of one channel by their centres, which have all neighbours.
class Squares {
  public:
    Squares(const PixelArray& picture, int channel)
        : width_(picture.Width()),
          squares_(static_cast<std::size_t>(picture.Width()) *
                   static_cast<std::size_t>(picture.Height())) {
        for (int y = 1; y < picture.Height() - 1; ++y) {
            const ThreeRows rows = RowsAround(picture, channel, y);
            for (int x = 1; x < width_ - 1; ++x)
                squares_[Index(x, y)] = Measure(Neighbourhood(rows, x));
        }
    }

    // Of the four squares that have a pixel as their corner, the mean of the one that spreads
    // least; the first on a tie.
    int CalmestAround(int x, int y) const {
        const Square* calmest = &squares_[Index(x - 1, y - 1)];
        for (const Square* square : {&squares_[Index(x + 1, y - 1)], &squares_[Index(x - 1, y + 1)],
                                     &squares_[Index(x + 1, y + 1)]}) {
            if (square->spread < calmest->spread) calmest = square;
        }
        return calmest->mean;
    }

  private:
    std::size_t Index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
               static_cast<std::size_t>(x);
    }

    int width_;
    std::vector<Square> squares_;
};

}  // namespace

void Aqua(const FilterRun& run) {
    const PixelArray& source = run.FilterSource;
    const std::array squares{Squares(source, kBlue), Squares(source, kGreen),
                             Squares(source, kRed)};
    ForEachRow(run, 2, source.Height() - 2, [&](int y) {
        for (int k = 0; k < kChannels; ++k) {
            const Squares& ofChannel = squares[static_cast<std::size_t>(k)];
            for (int x = 2; x < source.Width() - 2; ++x)
                run.FilterTarget.Row(k, y)[x] = Level(ofChannel.CalmestAround(x, y));
        }
    });
}

}  // namespace kestrel::filters
