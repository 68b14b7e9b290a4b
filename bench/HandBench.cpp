// The hand: kestodraw's window (offscreen) on the sample drawing, a handle dragged through 300
// pointer moves, each move ending in the repaint it asks for. Reported as process CPU time per
// move, the median (p50_ms) and the 99th percentile (p99_ms) of the 300.
//
//   KestoDrawHandBench [--dpr=2] [benchmark options]
//
// Without --dpr the window is 1600 x 1000 at one device pixel per pixel; with --dpr=2 it is
// 1920 x 1080 at two (3840 x 2160 device pixels).
#include "MainWindow.h"

#include <kestotool/geometry/K2DArrayPoint.h>
#include <kestotool/qt/QtBackend.h>
#include <kestotool/tool/ToolIdMap.h>

#include <QApplication>
#include <QMouseEvent>
#include <QUndoStack>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <ctime>
#include <memory>
#include <numbers>
#include <string>
#include <vector>

namespace {

int g_dpr = 1;

double CpuMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

// The sample's shapes: 1 has a radial fill, 6 a four-colour fill, 7 a plasma fill, 8 a bitmap fill.
struct Drag {
    int shape;
    int handle; // the index among the tool's handles; negative counts from the end
};

void HandDrag(benchmark::State& state, Drag drag)
{
    KestoDraw::MainWindow window;
    window.GetCanvas().SetWaitForPage(true); // the moves are measured over a page painted whole
    window.resize(g_dpr == 1 ? QSize(1600, 1000) : QSize(1920, 1080));
    window.show();
    if (!window.Open(QStringLiteral(KESTODRAW_SAMPLE))) {
        state.SkipWithError("the sample drawing did not open");
        return;
    }
    QApplication::processEvents();
    KestoDraw::Canvas& canvas = window.GetCanvas();
    canvas.FitPage();
    canvas.Select(drag.shape);
    QApplication::processEvents();
    if (!canvas.Tool()) {
        state.SkipWithError("the shape has no tool");
        return;
    }
    Kesto2D::K2DArrayPoint handles;
    canvas.Tool()->GetHandles(&handles);
    const int count = static_cast<int>(handles.GetSize());
    const KestoPlatform::CPoint at = handles.GetAt(drag.handle < 0 ? count + drag.handle : drag.handle);
    const QPointF from = canvas.View().map(QPointF(at.x, at.y));
    const auto send = [&](QEvent::Type type, QPointF local, Qt::MouseButton button, Qt::MouseButtons buttons) {
        QMouseEvent event(type, local, canvas.mapToGlobal(local), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(&canvas, &event);
    };

    constexpr int kMoves = 300;
    std::vector<double> costs;
    costs.reserve(static_cast<std::size_t>(state.max_iterations) * kMoves);
    for (auto _ : state) {
        send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        QApplication::processEvents();
        for (int i = 1; i <= kMoves; ++i) {
            // A loop of 60 pixels' radius, as a hand circles about where it pressed.
            const double turn = 2 * std::numbers::pi * i / kMoves;
            const QPointF to = from + QPointF(60 * std::sin(turn), 60 * (1 - std::cos(turn)));
            const double before = CpuMilliseconds();
            send(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
            QApplication::processEvents();
            costs.push_back(CpuMilliseconds() - before);
        }
        // Released off the press, so that the drag leaves a step to undo.
        send(QEvent::MouseMove, from + QPointF(20, 0), Qt::NoButton, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, from + QPointF(20, 0), Qt::LeftButton, Qt::NoButton);
        QApplication::processEvents();
        if (window.Undo().count() != 1) {
            state.SkipWithError("the drag made no step");
            return;
        }
        window.Undo().undo();
        QApplication::processEvents();
    }
    std::sort(costs.begin(), costs.end());
    const auto at_ = [&](double q) {
        return costs[static_cast<std::size_t>(q * static_cast<double>(costs.size() - 1))];
    };
    state.counters["p50_ms"] = at_(0.5);
    state.counters["p99_ms"] = at_(0.99);
}

void Register()
{
    const std::string size = g_dpr == 1 ? "1600x1000" : "3840x2160";
    const struct {
        const char* name;
        Drag drag;
    } drags[] = {{"RadialEndHandle", {1, -1}},
                 {"FourColourCorner", {6, 1}},
                 {"BitmapTileHandle", {8, -1}},
                 {"PlasmaHandle", {7, -1}}};
    for (const auto& d : drags)
        benchmark::RegisterBenchmark(("Hand/" + std::string(d.name) + "/" + size).c_str(),
                                     [drag = d.drag](benchmark::State& state) { HandDrag(state, drag); })
            ->Iterations(1)
            ->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char** argv)
{
    std::vector<char*> args;
    for (int i = 0; i < argc; ++i) {
        if (std::strcmp(argv[i], "--dpr=2") == 0)
            g_dpr = 2;
        else
            args.push_back(argv[i]);
    }
    int count = static_cast<int>(args.size());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", g_dpr == 1 ? "1" : "2");
    QApplication app(count, args.data());
    KestoToolQt::QtBackend backend;
    KestoPlatform::SetBackend(&backend);
    KestoTool::Init(40000, 40200);
    benchmark::Initialize(&count, args.data());
    Register();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    KestoPlatform::SetBackend(nullptr);
    return 0;
}
