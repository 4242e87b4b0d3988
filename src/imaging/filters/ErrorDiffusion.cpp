#include <vector>

#include "imaging/filters/FilterLoops.h"
#include "imaging/filters/Levels.h"
#include "imaging/filters/Routines.h"

namespace kestrel::filters {

namespace {

// Rows that an error reaches, and columns to either side.
constexpr int kRows = 3;
constexpr std::size_t kReach = 2;

// How the error of a pixel is shared out: weights by row from its own, columns from -2 to 2.
struct Kernel {
    int divisor;
    int weights[kRows][2 * kReach + 1];
};

constexpr Kernel kFloydSteinberg{16, {{0, 0, 0, 7, 0}, {0, 3, 5, 1, 0}, {0, 0, 0, 0, 0}}};
constexpr Kernel kBurke{32, {{0, 0, 0, 8, 4}, {2, 4, 8, 4, 2}, {0, 0, 0, 0, 0}}};
constexpr Kernel kStucki{42, {{0, 0, 0, 8, 4}, {2, 4, 8, 4, 2}, {1, 2, 4, 2, 1}}};

// The errors collected for a row and the two below it. Margins on both sides take what falls
// outside the picture.
class ErrorRows {
  public:
    explicit ErrorRows(int width) {
        for (auto& row : rows_)
            row.resize(static_cast<std::size_t>(width) + 2 * kReach);
    }

    int At(int x) const { return rows_[0][static_cast<std::size_t>(x) + kReach]; }

    template <const Kernel& kernel>
    void Share(int x, int error) {
        for (std::size_t row = 0; row < kRows; ++row) {
            int* to = rows_[row].data() + x;
            for (std::size_t i = 0; i <= 2 * kReach; ++i)
                to[i] += error * kernel.weights[row][i] / kernel.divisor;
        }
    }

    void NextRow() {
        std::ranges::fill(rows_[0], 0);
        std::rotate(rows_.begin(), rows_.begin() + 1, rows_.end());
    }

  private:
    std::array<std::vector<int>, kRows> rows_;
};

template <const Kernel& kernel>
void DiffuseErrors(const FilterRun& run) {
    const int threshold = AverageGrey(run.FilterSource);
    ErrorRows errors(run.FilterSource.Width());
    int row = 0;
    ForEachPixel(run, [&](Pixel p, int x, int y) {
        if (y != row) {
            errors.NextRow();
            row = y;
        }
        const int level = Level(GreyLevel(p) + errors.At(x) * 10 / run.Param);
        const int out = level < threshold ? 0 : kMaxLevel;
        errors.Share<kernel>(x, level - out);
        return Grey(Level(out));
    });
}

}  // namespace

void FloydSteinberg(const FilterRun& run) {
    DiffuseErrors<kFloydSteinberg>(run);
}

void Burke(const FilterRun& run) {
    DiffuseErrors<kBurke>(run);
}

void Stucki(const FilterRun& run) {
    DiffuseErrors<kStucki>(run);
}

}  // namespace kestrel::filters
