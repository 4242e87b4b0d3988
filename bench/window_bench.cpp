#include <benchmark/benchmark.h>

#include <QApplication>
#include <QtTest/QTest>

#include "platform/system/DiskFiles.h"
#include "tests/support/IconFiles.h"
#include "tests/support/Services.h"
#include "windows/FrmIcoEd.h"
#include "windows/FrmIcons.h"

namespace {

using namespace kestrel;

// One cell of a pencil stroke in the real window: mouse event, planes, views and the repaint.
void PencilCellWithRepaint(benchmark::State& state) {
    test::FakeServices services;
    windows::FrmIcoEd window(services.Given());
    window.Form_Load("");
    window.show();
    QApplication::processEvents();
    widgets::SurfaceWidget* grid = &window.GridWidget();
    QTest::mousePress(grid, Qt::LeftButton, {}, QPoint(5, 5));
    int x = 0;
    for (auto _ : state) {
        x = (x + 10) % 320;
        QMouseEvent move(QEvent::MouseMove, QPointF(x + 5, 45), QPointF(x + 5, 45), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(grid, &move);
        QApplication::processEvents();
    }
}
BENCHMARK(PencilCellWithRepaint);

// A library on the disk, and the extraction that begins with it.
struct Library {
    explicit Library(benchmark::State& state) {
        const auto bytes = test::LibraryOf(static_cast<int>(state.range(0)));
        if (!files.ReplaceFile(path, bytes)) state.SkipWithError("no library");
    }
    ~Library() { static_cast<void>(files.RemoveFile(path)); }
    tools::IconExtraction Open() {
        return {{services.application, services.desktop, services.boxes, files}, path};
    }

    test::FakeServices services;
    system::DiskFiles files;
    std::string path = "/tmp/window_bench.dll";
};

// The extraction dialog from opening its file to what is seen of it, window manager included.
void IconsDialog(benchmark::State& state) {
    Library library(state);
    for (auto _ : state) {
        tools::IconExtraction extraction = library.Open();
        windows::FrmIcons dialog(nullptr, extraction);
        dialog.show();
        if (!QTest::qWaitForWindowExposed(&dialog)) state.SkipWithError("not shown");
        QApplication::processEvents();
    }
}
BENCHMARK(IconsDialog)->Arg(50)->Arg(8000)->Unit(benchmark::kMillisecond)->UseRealTime();

// All rows that are seen are drawn anew.
void ScrollsIcons(benchmark::State& state) {
    Library library(state);
    tools::IconExtraction extraction = library.Open();
    windows::FrmIcons dialog(nullptr, extraction);
    dialog.show();
    QApplication::processEvents();
    auto* bar = dialog.findChild<QScrollBar*>("Vsb");
    constexpr int kFar = 9973;  // pixels
    for (auto _ : state) {
        bar->setValue((bar->value() + kFar) % bar->maximum());
        QApplication::processEvents();
    }
}
BENCHMARK(ScrollsIcons)->Arg(8000)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
