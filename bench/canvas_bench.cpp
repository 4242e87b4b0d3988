#include <benchmark/benchmark.h>

#include "document/Canvas.h"
#include "document/IcoFile.h"
#include "editing/Editor.h"
#include "formats/IconFile.h"
#include "tests/support/EditorRecorder.h"

namespace {

using namespace kestrel;

constexpr gdi::COLORREF kWindowColor = 0xF0F0F0;

document::IconDocument ColourfulIcon() {
    document::IconDocument icon;
    for (int y = 0; y < document::kIconSize; ++y) {
        for (int x = y % 3; x < document::kIconSize; ++x) {
            icon.PicMask.SetPixel(x, y, gdi::kBlack);
            icon.PicImage.SetPixel(x, y, static_cast<gdi::COLORREF>(x * 8 + y * 2048));
        }
    }
    return icon;
}

// Grid and preview rebuilt from the planes.
void RedrawAll(benchmark::State& state) {
    test::EditorRecorder views;
    document::IconDocument icon = ColourfulIcon();
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
        x = (x + document::kIconSize / 3) % 320;
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
    const document::IconDocument icon = ColourfulIcon();
    for (auto _ : state)
        benchmark::DoNotOptimize(document::EncodeIco(icon));
}
BENCHMARK(WriteIcon);

void ReadIcon(benchmark::State& state) {
    const document::IcoBytes bytes = document::EncodeIco(ColourfulIcon());
    for (auto _ : state)
        benchmark::DoNotOptimize(formats::ReadBestImage(bytes));
}
BENCHMARK(ReadIcon);

}  // namespace
