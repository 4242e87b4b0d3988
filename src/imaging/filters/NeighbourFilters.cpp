#include <cstdlib>

#include "imaging/filters/FilterLoops.h"
#include "imaging/filters/Levels.h"
#include "imaging/filters/Routines.h"

namespace kestrel::filters {

namespace {

// Each value that has a neighbour below on the right becomes rule(value, that neighbour, channel).
template <typename Rule>
void ForEachDiagonal(const FilterRun& run, const Rule& rule) {
    const int end = run.FilterSource.Width() - 1;
    ForEachRow(run, 0, run.FilterSource.Height() - 1, [&](int y) {
        for (int k = 0; k < kChannels; ++k) {
            const std::uint8_t* here = run.FilterSource.Row(k, y);
            const std::uint8_t* below = run.FilterSource.Row(k, y + 1);
            std::uint8_t* to = run.FilterTarget.Row(k, y);
            for (int x = 0; x < end; ++x)
                to[x] = rule(here[x], below[x + 1], k);
        }
    });
}

// The right-hand column of a neighbourhood less the left-hand one.
int RiseToTheRight(const Neighbourhood& at) {
    return at(1, -1) + at(1, 0) + at(1, 1) - at(-1, -1) - at(-1, 0) - at(-1, 1);
}

}  // namespace

void Sharpen(const FilterRun& run) {
    const int p = run.Param;
    ForEachNeighbourhoodInPlace(run, [p](const Neighbourhood& at) {
        return Level((at.Centre() * (p + 24) - 2 * at.SumOfNeighbours()) / (p + 8));
    });
}

void BlurMore(const FilterRun& run) {
    ForEachNeighbourhoodInPlace(
        run, [](const Neighbourhood& at) { return Level(at.SumOfNeighbours() / 8); });
}

void Blur(const FilterRun& run) {
    ForEachNeighbourhoodInPlace(run, [](const Neighbourhood& at) {
        return Level((at.Centre() + at(-1, 0) + at(0, -1) + at(0, 1) + at(1, 0)) / 5);
    });
}

void EdgeEnhance(const FilterRun& run) {
    const int p = run.Param;
    ForEachNeighbourhoodInPlace(run, [p](const Neighbourhood& at) {
        return Level((at.Centre() * (p + 9) - at.SumOfNeighbours()) / (p + 1));
    });
}

void Contour(const FilterRun& run) {
    ForEachNeighbourhood(run, [offset = SplitColor(run.Param)](const Neighbourhood& at, int k) {
        return Level(8 * at.Centre() - at.SumOfNeighbours() + offset[static_cast<std::size_t>(k)]);
    });
}

void Emboss(const FilterRun& run) {
    ForEachDiagonal(run, [offset = SplitColor(run.Param)](int here, int below, int k) {
        return Level(std::abs(here - below + offset[static_cast<std::size_t>(k)]));
    });
}

void Engrave(const FilterRun& run) {
    ForEachDiagonal(run, [offset = SplitColor(run.Param)](int here, int below, int k) {
        return Level(std::abs(below - here + offset[static_cast<std::size_t>(k)]));
    });
}

void EmbossMore(const FilterRun& run) {
    ForEachNeighbourhood(run, [offset = SplitColor(run.Param)](const Neighbourhood& at, int k) {
        return Level(offset[static_cast<std::size_t>(k)] - RiseToTheRight(at));
    });
}

void EngraveMore(const FilterRun& run) {
    ForEachNeighbourhood(run, [offset = SplitColor(run.Param)](const Neighbourhood& at, int k) {
        return Level(offset[static_cast<std::size_t>(k)] + RiseToTheRight(at));
    });
}

void Relief(const FilterRun& run) {
    constexpr int kLift = 50;
    ForEachNeighbourhood(run, [](const Neighbourhood& at, int) {
        const int slope =
            2 * at(-1, -1) + at(-1, 0) + at(0, -1) - at(0, 1) - at(1, 0) - 2 * at(1, 1);
        return Level((at.Centre() + slope) / 2 + kLift);
    });
}

void ConnectedContour(const FilterRun& run) {
    ForEachNeighbourhood(
        run, [](const Neighbourhood& at, int) { return Level(at.Centre() - at.Smallest()); });
}

void Dilate(const FilterRun& run) {
    ForEachNeighbourhood(run, [](const Neighbourhood& at, int) { return at.Largest(); });
}

void Erode(const FilterRun& run) {
    ForEachNeighbourhood(run, [](const Neighbourhood& at, int) { return at.Smallest(); });
}

}  // namespace kestrel::filters
