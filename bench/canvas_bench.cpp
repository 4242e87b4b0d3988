#include <benchmark/benchmark.h>

#include "document/Canvas.h"
#include "editing/Editor.h"
#include "formats/IcoFile.h"
#include "formats/IconFile.h"
#include "tests/support/EditorRecorder.h"

namespace {

using namespace kestrel;

constexpr gdi::COLORREF kWindowColor = 0xF0F0F0;

gdi::IconPlanes ColourfulIcon() {
    gdi::IconPlanes icon;
    for (int y = 0; y < gdi::kIconSize; ++y) {
        for (int x = y % 3; x < gdi::kIconSize; ++x) {
            icon.mask.SetPixel(x, y, gdi::kBlack);
            icon.image.SetPixel(x, y, static_cast<gdi::COLORREF>(x * 8 + y * 2048));
        }
    }
    return icon;
}

// Grid and preview rebuilt from the planes.
void RedrawAll(benchmark::State& state) {
    test::EditorRecorder views;
    document::IconDocument icon;
    icon.ChangePlanes() = ColourfulIcon();
    document::Canvas canvas(icon, views, views, kWindowColor);
    for (auto _ : state) {
        views.repainted.clear();
        canvas.RedrawAll();
    }
}
BENCHMARK(RedrawAll);

// One pointer event of a pencil stroke: the cell in planes and views, and the readouts.
void PencilCell(benchmark::State& state) {
    test::EditorRecorder views;
    editing::Editor editor(views.Views(), kWindowColor);
    editor.PicMain_MouseDown(editing::Button::Left, 5, 5);
    int x = 0;
    for (auto _ : state) {
        views.repainted.clear();
        x = (x + gdi::kIconSize / 3) % 320;
        editor.PicMain_MouseMove({true, false}, x, 5);
    }
}
BENCHMARK(PencilCell);

// From the button's release: the undo snapshot.
void PencilClick(benchmark::State& state) {
    test::EditorRecorder views;
    editing::Editor editor(views.Views(), kWindowColor);
    for (auto _ : state) {
        views.repainted.clear();
        editor.PicMain_MouseDown(editing::Button::Left, 5, 5);
        editor.PicMain_MouseUp(editing::Button::Left, 5, 5);
    }
}
BENCHMARK(PencilClick)->Iterations(10000);

void WriteIcon(benchmark::State& state) {
    const gdi::IconPlanes icon = ColourfulIcon();
    for (auto _ : state)
        benchmark::DoNotOptimize(formats::EncodeIco(icon));
}
BENCHMARK(WriteIcon);

void ReadIcon(benchmark::State& state) {
    const formats::IcoBytes bytes = formats::EncodeIco(ColourfulIcon());
    for (auto _ : state)
        benchmark::DoNotOptimize(formats::ReadBestImage(bytes));
}
BENCHMARK(ReadIcon);

}  // namespace
