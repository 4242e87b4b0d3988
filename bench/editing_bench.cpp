#include <benchmark/benchmark.h>
#include <malloc.h>

#include <filesystem>

#include "document/JournalFolder.h"
#include "editing/Editor.h"
#include "editing/WorkLog.h"
#include "editing/WorkRecords.h"
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

// A folder of its own below the working folder, and not in memory.
struct Folder {
    Folder() { std::filesystem::create_directory(path); }
    ~Folder() { std::filesystem::remove_all(path); }
    std::string path = std::filesystem::absolute("journal_bench.tmp");
};

// A pencil stroke of some cells, from press to release: range 0 without a journal, 1 with one.
void Stroke(benchmark::State& state) {
    const Folder folder;
    test::EditorRecorder views;
    editing::WorkLog log(state.range(0) == 0 ? std::string() : folder.path);
    editing::Editor editor(views.Views(log), 0xF0F0F0);
    int y = 5;
    for (auto _ : state) {
        state.PauseTiming();
        views.repainted.clear();
        editor.Wells().SetPenColor(Button::Left, static_cast<gdi::COLORREF>(state.iterations()));
        y = y == 315 ? 5 : y + 10;
        state.ResumeTiming();
        editor.PicMain_MouseDown(Button::Left, 5, y);
        for (int x = 15; x < 75; x += 10)
            editor.PicMain_MouseMove({true, false}, x, y);
        editor.PicMain_MouseUp(Button::Left, 65, y);
    }
}
BENCHMARK(Stroke)->Arg(0)->Arg(1)->Iterations(20000);

// From a journal on the disk to the editor as it was, with so many entries of a cell each; the
// larger one is about as long as a journal becomes before it is rewritten.
void ReplayJournal(benchmark::State& state) {
    const Folder folder;
    {
        test::EditorRecorder views;
        editing::WorkLog log(folder.path);
        editing::Editor editor(views.Views(log), 0xF0F0F0);
        for (int i = 0; i < state.range(0); ++i)
            editor.EditIcon(editing::Leaves::Entry)
                .PaintCell(i % 32, i / 32 % 32, static_cast<gdi::COLORREF>(i));
    }
    std::size_t bytes = 0;
    for (auto _ : state) {
        const auto ended = document::JournalFolder(folder.path).Ended();
        const auto journal = ended.front().Content().value();
        bytes = journal.size();
        editing::ReplayedWork replayed = editing::Replay(journal);
        test::EditorRecorder views;
        editing::Editor editor(views.Views(), 0xF0F0F0);
        editor.Restore(replayed.work, std::move(replayed.history));
    }
    state.counters["bytes"] = static_cast<double>(bytes);
}
BENCHMARK(ReplayJournal)->Arg(10000)->Arg(2900000)->Unit(benchmark::kMillisecond);

}  // namespace
