#include <algorithm>
#include <vector>

#include "platform/gdi/Draw.h"

namespace kestrel::gdi {
namespace {

// Grows runs of one colour row by row. Every run found is painted before its neighbours are
// looked at, so no pixel is painted twice.
class Flood {
  public:
    Flood(Surface& target, COLORREF from, COLORREF to) : target_(target), from_(from), to_(to) {}

    void Run(Point start) {
        seeds_.push_back(start);
        while (!seeds_.empty()) {
            const Point seed = seeds_.back();
            seeds_.pop_back();
            if (target_.GetPixel(seed.x, seed.y) == from_) PaintRun(seed);
        }
    }

  private:
    void PaintRun(Point seed) {
        int left = seed.x;
        int right = seed.x + 1;
        while (target_.GetPixel(left - 1, seed.y) == from_)
            --left;
        while (target_.GetPixel(right, seed.y) == from_)
            ++right;
        const auto row = target_.Row(seed.y);
        std::fill(row.begin() + left, row.begin() + right, to_);
        SeedRow(left, right, seed.y - 1);
        SeedRow(left, right, seed.y + 1);
    }

    // One seed for each run of the colour that begins in left..right-1 of row y.
    void SeedRow(int left, int right, int y) {
        bool inRun = false;
        for (int x = left; x < right; ++x) {
            const bool matches = target_.GetPixel(x, y) == from_;
            if (matches && !inRun) seeds_.push_back({x, y});
            inRun = matches;
        }
    }

    Surface& target_;
    COLORREF from_;
    COLORREF to_;
    std::vector<Point> seeds_;
};

}  // namespace

void FloodFillSurface(Surface& target, int x, int y, COLORREF surfaceColor, COLORREF fill) {
    fill &= kWhite;
    // Painting an area in its own colour changes nothing, and would never end.
    if (fill == surfaceColor || !target.Contains(x, y)) return;
    Flood(target, surfaceColor, fill).Run({x, y});
}

}  // namespace kestrel::gdi
