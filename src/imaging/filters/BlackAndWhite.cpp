#include "imaging/filters/FilterLoops.h"
#include "imaging/filters/Levels.h"
#include "imaging/filters/Routines.h"

namespace kestrel::filters {

namespace {

// A grey level of 1 to 16 turns black where it is below this one; by y and x modulo 4.
constexpr int kDither[4][4] = {{1, 13, 4, 16}, {9, 5, 12, 8}, {3, 15, 2, 14}, {11, 7, 10, 6}};

constexpr Pixel BlackOrWhite(bool white) {
    return Grey(white ? kMaxLevel : 0);
}

// The grey level of a pixel that has eight neighbours, every channel sharpened first.
int SharpenedGrey(const PixelArray& picture, int x, int y) {
    const auto sharpened = [&](int channel) {
        const Neighbourhood at(RowsAround(picture, channel, y), x);
        return Level((10 * at.Centre() - at.SumOfNeighbours()) / 2);
    };
    return GreyLevel(sharpened(kBlue), sharpened(kGreen), sharpened(kRed));
}

}  // namespace

void NearestColor(const FilterRun& run) {
    const auto least = SplitColor(run.Param);
    ForEachPixel(run, [&least](Pixel p, int, int) {
        return BlackOrWhite(p.red >= least[kRed] || p.green >= least[kGreen] ||
                            p.blue >= least[kBlue]);
    });
}

void OrderedDither(const FilterRun& run) {
    ForEachPixel(run, [](Pixel p, int x, int y) {
        const int level = GreyLevel(p) / 16 + 1;
        return BlackOrWhite(level >= kDither[y % 4][x % 4]);
    });
}

void EnhancedDiffusion(const FilterRun& run) {
    const PixelArray& source = run.FilterSource;
    const int threshold = AverageGrey(source);
    int carry = 0;
    ForEachPixel(run, [&](Pixel p, int x, int y) {
        const bool border = x == 0 || y == 0 || x == source.Width() - 1 || y == source.Height() - 1;
        const int grey = border ? GreyLevel(p) : SharpenedGrey(source, x, y);
        const int level = Level(grey + carry);
        const bool white = level >= threshold;
        carry = (level - (white ? kMaxLevel : 0)) / 4;
        return BlackOrWhite(white);
    });
}

}  // namespace kestrel::filters
