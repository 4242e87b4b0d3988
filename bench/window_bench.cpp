#include <benchmark/benchmark.h>

#include <QApplication>
#include <QtTest/QTest>

#include "tests/support/Services.h"
#include "windows/FrmIcoEd.h"

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

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
