#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "imaging/filters/Filter.h"
#include "imaging/filters/Levels.h"

namespace kestrel::filters {

// Rows from the top, as every filter takes them; the window lives on after each, and at the end.
template <typename DoRow>
void ForEachRow(const FilterRun& run, int first, int end, const DoRow& doRow) {
    for (int y = first; y < end; ++y) {
        doRow(y);
        run.loop.DoEvents();
    }
    run.loop.DoEvents();
}

// Each value of each channel becomes rule(value).
template <typename Rule>
void ForEachValue(const FilterRun& run, const Rule& rule) {
    const int width = run.FilterSource.Width();
    ForEachRow(run, 0, run.FilterSource.Height(), [&](int y) {
        for (int k = 0; k < kChannels; ++k) {
            const std::uint8_t* from = run.FilterSource.Row(k, y);
            std::uint8_t* to = run.FilterTarget.Row(k, y);
            for (int x = 0; x < width; ++x)
                to[x] = rule(from[x]);
        }
    });
}

// The channels of one pixel.
struct Pixel {
    std::uint8_t blue = 0;
    std::uint8_t green = 0;
    std::uint8_t red = 0;
};

constexpr Pixel Grey(int level) {
    const auto value = static_cast<std::uint8_t>(level);
    return {value, value, value};
}

inline int GreyLevel(Pixel pixel) {
    return GreyLevel(pixel.blue, pixel.green, pixel.red);
}

// Each pixel becomes rule(pixel, x, y). It is changed in place: rows that might overlap cannot be
// taken several pixels at once.
template <typename Rule>
void ForEachPixel(const FilterRun& run, const Rule& rule) {
    PixelArray& array = run.FilterTarget;
    const int width = array.Width();
    ForEachRow(run, 0, array.Height(), [&](int y) {
        std::uint8_t* blues = array.Row(kBlue, y);
        std::uint8_t* greens = array.Row(kGreen, y);
        std::uint8_t* reds = array.Row(kRed, y);
        for (int x = 0; x < width; ++x) {
            const Pixel pixel = rule(Pixel{blues[x], greens[x], reds[x]}, x, y);
            blues[x] = pixel.blue;
            greens[x] = pixel.green;
            reds[x] = pixel.red;
        }
    });
}

// Three rows of a channel, one under the other.
using ThreeRows = std::array<const std::uint8_t*, 3>;

inline ThreeRows RowsAround(const PixelArray& array, int channel, int y) {
    return {array.Row(channel, y - 1), array.Row(channel, y), array.Row(channel, y + 1)};
}

// A value in the middle row and its eight neighbours: (-1, -1) is the one above on the left.
class Neighbourhood {
  public:
    Neighbourhood(const ThreeRows& rows, int x) : rows_{rows[0] + x, rows[1] + x, rows[2] + x} {}

    int operator()(int dx, int dy) const { return Row(dy)[dx]; }
    int Centre() const { return rows_[1][0]; }
    int SumOfNeighbours() const {
        const auto& [above, here, below] = rows_;
        return above[-1] + above[0] + above[1] + here[-1] + here[1] + below[-1] + below[0] +
               below[1];
    }
    // Of all nine values.
    std::uint8_t Smallest() const {
        return Fold([](std::uint8_t a, std::uint8_t b) { return std::min(a, b); });
    }
    std::uint8_t Largest() const {
        return Fold([](std::uint8_t a, std::uint8_t b) { return std::max(a, b); });
    }

  private:
    const std::uint8_t* Row(int dy) const {
        const auto& [above, here, below] = rows_;
        return dy < 0 ? above : dy > 0 ? below : here;
    }

    template <typename Choose>
    std::uint8_t Fold(const Choose& choose) const {
        std::uint8_t chosen = rows_[1][0];
        for (const std::uint8_t* row : rows_)
            chosen = choose(chosen, choose(row[-1], choose(row[0], row[1])));
        return chosen;
    }

    ThreeRows rows_;
};

// Each value that has eight neighbours becomes rule(its neighbourhood, channel), read from the
// source.
template <typename Rule>
void ForEachNeighbourhood(const FilterRun& run, const Rule& rule) {
    const int end = run.FilterSource.Width() - 1;
    ForEachRow(run, 1, run.FilterSource.Height() - 1, [&](int y) {
        for (int k = 0; k < kChannels; ++k) {
            const ThreeRows rows = RowsAround(run.FilterSource, k, y);
            std::uint8_t* to = run.FilterTarget.Row(k, y);
            for (int x = 1; x < end; ++x)
                to[x] = rule(Neighbourhood(rows, x), k);
        }
    });
}

// The same in place: what lies above and to the left has been changed already.
template <typename Rule>
void ForEachNeighbourhoodInPlace(const FilterRun& run, const Rule& rule) {
    PixelArray& array = run.FilterTarget;
    const int end = array.Width() - 1;
    ForEachRow(run, 1, array.Height() - 1, [&](int y) {
        const std::array rows{RowsAround(array, kBlue, y), RowsAround(array, kGreen, y),
                              RowsAround(array, kRed, y)};
        const std::array to{array.Row(kBlue, y), array.Row(kGreen, y), array.Row(kRed, y)};
        // A value needs the one to its left. With the channels side by side there is other work to
        // do while it is on its way.
        for (int x = 1; x < end; ++x) {
            for (std::size_t k = 0; k < kChannels; ++k)
                to[k][x] = rule(Neighbourhood(rows[k], x));
        }
    });
}

}  // namespace kestrel::filters
