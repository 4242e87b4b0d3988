#include <benchmark/benchmark.h>
#include <malloc.h>

#include "editing/Editor.h"
#include "tests/support/EditorRecorder.h"

namespace {

using namespace kestrel;
using editing::Button;

// An editor with a tool in hand, on the empty icon.
struct Bench {
    explicit Bench(editing::ToolId tool) { editor.Tools().SelectTool(tool); }
    void Drag(int from, int to) {
        views.repainted.clear();
        editor.PicMain_MouseDown(Button::Left, from, from);
        editor.PicMain_MouseMove({true, false}, to, to);
        editor.PicMain_MouseUp(Button::Left, to, to);
    }

    test::EditorRecorder views;
    editing::Editor editor{views.Views(), 0xF0F0F0};
};

// From press to release: the whole icon filled, views and history.
void FloodFill(benchmark::State& state) {
    Bench bench(editing::ToolId::FloodFill);
    gdi::COLORREF color = 0;
    for (auto _ : state) {
        bench.editor.Wells().SetPenColor(Button::Left, ++color & 0xFF);
        bench.Drag(155, 155);
    }
}
BENCHMARK(FloodFill)->Iterations(5000);

// From press to release, with one step of the rubber band.
void FilledEllipse(benchmark::State& state) {
    Bench bench(editing::ToolId::FilledEllipse);
    for (auto _ : state)
        bench.Drag(5, 315);
}
BENCHMARK(FilledEllipse)->Iterations(5000);

// One step of a drag that moves the whole icon.
void MoveSelection(benchmark::State& state) {
    Bench bench(editing::ToolId::Selection);
    bench.editor.SelectAll();
    bench.editor.PicMain_MouseDown(Button::Left, 155, 155);
    int x = 155;
    for (auto _ : state) {
        bench.views.repainted.clear();
        x = x == 155 ? 165 : 155;
        bench.editor.PicMain_MouseMove({true, false}, x, 155);
    }
}
BENCHMARK(MoveSelection)->Iterations(5000);

// A snapshot after one pixel has changed, with a million behind it at the end.
void PushUndoSnapshot(benchmark::State& state) {
    document::IconDocument icon;
    test::EditorRecorder views;
    editing::ModCollections history(icon, views);
    history.PushUndoSnapshot();
    const std::size_t before = mallinfo2().uordblks;
    int pixel = 0;
    for (auto _ : state) {
        pixel = (pixel + 7) % 1024;
        icon.ChangePlanes().image.SetPixel(pixel % 32, pixel / 32,
                                           static_cast<gdi::COLORREF>(history.UndoCount()));
        history.PushUndoSnapshot();
    }
    state.counters["bytes_each"] = static_cast<double>(mallinfo2().uordblks - before) /
                                   static_cast<double>(state.iterations());
}
BENCHMARK(PushUndoSnapshot)->Iterations(1000000);

// One step back and one forward, `range` snapshots deep.
void UndoAndRedo(benchmark::State& state) {
    Bench bench(editing::ToolId::Pencil);
    document::IconDocument& icon = bench.editor.Document();
    for (int i = 0; i < state.range(0); ++i) {
        icon.ChangePlanes().mask.SetPixel(i % 32, i / 32 % 32,
                                          i / 1024 % 2 == 0 ? gdi::kBlack : gdi::kWhite);
        bench.editor.History().PushUndoSnapshot();
    }
    for (auto _ : state) {
        bench.views.repainted.clear();
        bench.editor.PopUndoSnapshot();
        bench.editor.PopRedoSnapshot();
    }
}
BENCHMARK(UndoAndRedo)->Arg(10)->Arg(1000000);

}  // namespace
