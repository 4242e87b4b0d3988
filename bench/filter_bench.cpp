// Every filter on a colourful 32 x 32 picture, by its menu key: the filter alone, on arrays that
// are ready. "run" adds what taking the picture apart and putting it together costs.
#include <benchmark/benchmark.h>

#include <string>

#include "imaging/filters/FilterTable.h"
#include "imaging/filters/mFilterG.h"
#include "platform/gdi/IconPlanes.h"

namespace {

using namespace kestrel;

class NoEvents : public services::MessageLoop {
  public:
    void DoEvents() override {}
};

gdi::Surface Colourful() {
    system::RandomNumbers random(1);
    gdi::Surface picture(gdi::kIconSize, gdi::kIconSize);
    for (int y = 0; y < gdi::kIconSize; ++y) {
        for (int x = 0; x < gdi::kIconSize; ++x)
            picture.SetPixel(x, y, static_cast<gdi::COLORREF>(random.Next() * gdi::kWhite));
    }
    return picture;
}

void FilterAlone(benchmark::State& state, const filters::FilterRow& row) {
    NoEvents loop;
    system::RandomNumbers random(1);
    const filters::PixelArray source(Colourful());
    filters::PixelArray target(source);
    for (auto _ : state) {
        target = source;
        row.filter({source, target, row.Param, loop, random});
        benchmark::DoNotOptimize(target.Row(0, 0));
        benchmark::ClobberMemory();
    }
}

void WholeRun(benchmark::State& state, const filters::FilterRow& row) {
    NoEvents loop;
    system::RandomNumbers random(1);
    filters::mFilterG runner(loop, random);
    const gdi::Surface original = Colourful();
    gdi::Surface picture = original;
    for (auto _ : state) {
        picture = original;
        runner.RunFilter(row.FilterId, picture, row.Param);
        benchmark::ClobberMemory();
    }
}

const bool kRegistered = [] {
    for (const filters::FilterRow& row : filters::Filters()) {
        benchmark::RegisterBenchmark(std::string(row.key).c_str(), FilterAlone, row);
        benchmark::RegisterBenchmark((std::string(row.key) + "/run").c_str(), WholeRun, row);
    }
    return true;
}();

}  // namespace
