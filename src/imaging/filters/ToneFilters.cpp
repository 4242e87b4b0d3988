#include <cmath>
#include <span>

#include "imaging/filters/FilterLoops.h"
#include "imaging/filters/Levels.h"
#include "imaging/filters/Routines.h"

namespace kestrel::filters {

namespace {

template <typename Rule>
auto MakeTable(const Rule& rule) {
    LevelTable<decltype(rule(0))> table;
    for (int i = 0; i <= kMaxLevel; ++i)
        table[static_cast<std::size_t>(i)] = rule(i);
    return table;
}

// Each value becomes rule(value), which is asked once for each level.
template <typename Rule>
void ForEachLevel(const FilterRun& run, const Rule& rule) {
    ForEachValue(run, [table = MakeTable(rule)](std::uint8_t v) { return table[v]; });
}

// Takes what a channel has beyond 0..255 to it, half to each of the others.
void FoldChannel(std::array<int, kChannels>& pixel, std::size_t channel) {
    const int inside = Level(pixel[channel]);
    const int half = (pixel[channel] - inside) / 2;
    for (int& value : pixel)
        value += half;
    pixel[channel] = inside;
}

// Folds channels back into 0..255.
void Fold(std::array<int, kChannels>& pixel) {
    const auto isInside = [](int v) { return v >= 0 && v <= kMaxLevel; };
    while (!std::ranges::all_of(pixel, isInside)) {
        if (std::ranges::all_of(pixel, [](int v) { return v <= 0; })) {
            pixel.fill(0);
        } else if (std::ranges::all_of(pixel, [](int v) { return v >= kMaxLevel; })) {
            pixel.fill(kMaxLevel);
        } else {
            for (std::size_t channel = 0; channel < pixel.size(); ++channel)
                FoldChannel(pixel, channel);
        }
    }
}

// Spreads the values of one channel over 0..255; equal ones stay.
LevelTable<std::uint8_t> StretchTable(std::span<const std::uint8_t> values) {
    std::uint8_t min = kMaxLevel;
    std::uint8_t max = 0;
    for (const std::uint8_t value : values) {
        min = std::min(min, value);
        max = std::max(max, value);
    }
    if (min >= max) return MakeTable(Level);
    return MakeTable([least = int{min}, range = double(max - min)](int v) {
        return Level(Round((v - least) * kMaxLevel / range));
    });
}

// Most are products of smaller ones, which cost a tenth of an exponential. No gamma factor brings a
// level nearer than 6e-8 to a half, so the last bits that this costs do not show.
LevelTable<double> PowersOfLevels(double exponent) {
    static const auto logarithms = MakeTable([](int v) { return std::log(v); });
    LevelTable<double> powers;
    for (std::size_t v = 0; v < powers.size(); ++v) {
        const auto divides = [v](std::size_t factor) { return v > factor && v % factor == 0; };
        constexpr std::array<std::size_t, 3> kFactors{2, 3, 5};
        const auto* factor = std::ranges::find_if(kFactors, divides);
        powers[v] = factor == kFactors.end() ? std::exp(exponent * logarithms[v])
                                             : powers[*factor] * powers[v / *factor];
    }
    return powers;
}

}  // namespace

void Negative(const FilterRun& run) {
    ForEachValue(run, [](std::uint8_t v) { return static_cast<std::uint8_t>(kMaxLevel - v); });
}

void GreyScale(const FilterRun& run) {
    ForEachPixel(run, [](Pixel p, int, int) { return Grey(GreyLevel(p)); });
}

void Brightness(const FilterRun& run) {
    const double factor = (run.Param + 100) / 100.0;
    ForEachLevel(run, [factor](int v) { return Level(Round(factor * v)); });
}

void Saturation(const FilterRun& run) {
    const double factor = static_cast<float>(run.Param / 100.0);
    ForEachPixel(run, [factor](Pixel p, int, int) {
        // v + factor * (v - grey), exact in every step.
        const double grey = factor * GreyLevel(p);
        const auto away = [=](int v) { return Level(Round((1 + factor) * v - grey)); };
        return Pixel{away(p.blue), away(p.green), away(p.red)};
    });
}

void Contrast(const FilterRun& run) {
    const int mean = AverageGrey(run.FilterSource);
    const auto factor = static_cast<float>((run.Param + 100) / 100.0);
    const auto table = MakeTable(
        [mean, factor = double{factor}](int v) { return Round(factor * (v - mean) + mean); });
    ForEachPixel(run, [&table](Pixel p, int, int) {
        std::array pixel{table[p.blue], table[p.green], table[p.red]};
        Fold(pixel);
        return Pixel{Level(pixel[kBlue]), Level(pixel[kGreen]), Level(pixel[kRed])};
    });
}

void ContrastStretch(const FilterRun& run) {
    const auto blue = StretchTable(run.FilterSource.Plane(kBlue));
    const auto green = StretchTable(run.FilterSource.Plane(kGreen));
    const auto red = StretchTable(run.FilterSource.Plane(kRed));
    ForEachPixel(run, [&](Pixel p, int, int) {
        return Pixel{blue[p.blue], green[p.green], red[p.red]};
    });
}

void Gamma(const FilterRun& run) {
    const auto gamma = static_cast<float>(run.Param / 100.0);
    const LevelTable<double> powers = PowersOfLevels(1.0 / gamma);
    const double scale = kMaxLevel / powers.back();
    ForEachLevel(run,
                 [&](int v) { return Level(Round(scale * powers[static_cast<std::size_t>(v)])); });
}

void SwapColors(const FilterRun& run) {
    ForEachPixel(run, [variant = run.Param](Pixel p, int, int) {
        switch (variant) {
            case 1:
                return Pixel{.blue = p.green, .green = p.red, .red = p.blue};
            case 2:
                return Pixel{.blue = p.red, .green = p.blue, .red = p.green};
            case 3:
                return Pixel{.blue = p.green, .green = p.blue, .red = p.red};
            case 4:
                return Pixel{.blue = p.red, .green = p.green, .red = p.blue};
            case 5:
                return Pixel{.blue = p.blue, .green = p.red, .red = p.green};
            default:
                return p;
        }
    });
}

}  // namespace kestrel::filters
