#include <cmath>

#include "imaging/filters/FilterLoops.h"
#include "imaging/filters/Levels.h"
#include "imaging/filters/Routines.h"

namespace kestrel::filters {

namespace {

// A coordinate moved at random by at most half the reach; not at all where that leads outside.
class RandomSteps {
  public:
    RandomSteps(system::RandomNumbers& random, int reach)
        : random_(random), reach_(reach), half_(Round(reach / 2.0)) {}

    int From(int at, int end) {
        const int to = at + Round(random_.Next() * reach_ - half_);
        return to >= 0 && to < end ? to : at;
    }

  private:
    system::RandomNumbers& random_;
    int reach_;
    int half_;
};

// The average of one channel over the part of a block that lies in the picture.
std::uint8_t AverageOfBlock(const PixelArray& picture, int channel, int left, int top, int size) {
    const int right = std::min(left + size, picture.Width());
    const int bottom = std::min(top + size, picture.Height());
    int sum = 0;
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x)
            sum += picture.Row(channel, y)[x];
    }
    return Level(sum / ((right - left) * (bottom - top)));
}

}  // namespace

void Diffuse(const FilterRun& run) {
    PixelArray& array = run.FilterTarget;
    RandomSteps steps(run.random, run.Param);
    ForEachRow(run, 0, array.Height(), [&](int y) {
        for (int x = 0; x < array.Width(); ++x) {
            const int fromX = steps.From(x, array.Width());
            const int fromY = steps.From(y, array.Height());
            for (int k = 0; k < kChannels; ++k)
                array.Row(k, y)[x] = array.Row(k, fromY)[fromX];
        }
    });
}

void Pixelize(const FilterRun& run) {
    const PixelArray& source = run.FilterSource;
    const int size = run.Param;
    ForEachRow(run, 0, source.Height(), [&](int y) {
        for (int k = 0; k < kChannels; ++k) {
            std::uint8_t* to = run.FilterTarget.Row(k, y);
            // The rows of a block are alike.
            if (y % size != 0) {
                std::copy_n(run.FilterTarget.Row(k, y - 1), source.Width(), to);
                continue;
            }
            for (int left = 0; left < source.Width(); left += size) {
                const auto average = AverageOfBlock(source, k, left, y, size);
                std::fill(to + left, to + std::min(left + size, source.Width()), average);
            }
        }
    });
}

void AddNoise(const FilterRun& run) {
    ForEachPixel(run, [&random = run.random, p = run.Param](Pixel pixel, int, int) {
        const auto noisy = [&](int v) { return Level(v + Round(random.Next() * 2 * p - p)); };
        // In this order they are drawn.
        const auto blue = noisy(pixel.blue);
        const auto green = noisy(pixel.green);
        return Pixel{blue, green, noisy(pixel.red)};
    });
}

}  // namespace kestrel::filters
