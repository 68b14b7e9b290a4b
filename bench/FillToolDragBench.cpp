// One step of an inner-stop drag of a linear fill with n stops, as a host runs it: the tool
// moves the stop and commits, the host keeps the committed fill as its document's fill and
// hands it back to the tool. A memcpy of the stop list's worth of bytes runs beside it as the
// baseline, so that a noisy machine still gives a stable ratio.
#include "kestotool/filltool/FillToolFactory.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/geometry/Rounding.h"
#include "kestotool/tool/NullToolSite.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <vector>

using namespace KestoTool;

namespace {

// The smallest host that keeps what the tool commits, as a document does: by sharing it, or
// (as a host that does not trust the fill to stay unchanged) by keeping a clone.
class BenchHost final : public NullToolSite {
public:
    FillTool* tool = nullptr;
    RefPtr<const CFill> fill;
    bool cloneCommits = false;

    CRect GetObjectBBox() override { return {0, 0, 1000000, 1000}; }
    CRect GetTransformedObjectBBox() override { return GetObjectBBox(); }
    bool IsInDrag() override { return true; }
    void UpdateFill(const CFill* committed, const wchar_t*) override
    {
        fill = cloneCommits ? RefPtr<const CFill>(committed->Clone()) : RefPtr<const CFill>(committed);
        tool->SetFill(fill.get());
    }
    void UpdateTransparency(const CFill* committed, const wchar_t* name, bool) override { UpdateFill(committed, name); }
};

constexpr int kLength = 1000000;

RefPtr<CFill> LinearWithStops(int n)
{
    auto fill = KestoKernel::MakeRef<KestoGDI::CFillLinear>();
    fill->SetControls(K2DDblPoint(0, 500), K2DDblPoint(kLength, 500));
    KestoGDI::ColourIntPairs stops;
    for (int i = 0; i < n; ++i)
        stops.Add(KestoGDI::CRGBColour(KestoPlatform::RGB(i % 256, (i * 7) % 256, 128)),
                  Kesto2D::MulDiv(i, 10000, n - 1));
    fill->SetColourIntPairs(stops);
    return fill;
}

CPoint AtPosition(int position)
{
    return {Kesto2D::MulDiv(kLength, position, 10000), 500};
}

// n stops in all: a fill of three stops has one inner stop.
void DragStep(benchmark::State& state, bool cloneCommits)
{
    const int n = static_cast<int>(state.range(0));
    BenchHost host;
    host.cloneCommits = cloneCommits;
    host.fill = LinearWithStops(n);
    std::unique_ptr<FillTool> tool = FillToolFactory::Create(host.fill.get(), &host);
    host.tool = tool.get();

    // Grab the middle stop and move it to and fro between its neighbours.
    const int middle = n / 2;
    const int from = Kesto2D::MulDiv(middle, 10000, n - 1);
    CPoint press = AtPosition(from);
    tool->OnDragStart(press, 0);
    CPoint moves[] = {AtPosition(from), {AtPosition(from).x + 1, 500}};
    int i = 0;
    for (auto _ : state) {
        CPoint p = moves[i ^= 1];
        tool->OnDragChange(p, 0);
        benchmark::DoNotOptimize(host.fill.get());
    }
    state.SetItemsProcessed(state.iterations());
}

void InnerStopDragStep(benchmark::State& state)
{
    DragStep(state, false);
}

void InnerStopDragStepCloningHost(benchmark::State& state)
{
    DragStep(state, true);
}

void CopyStopBytes(benchmark::State& state)
{
    // The bytes of n stops held as (colour, position) values: 8 bytes each.
    const std::size_t bytes = static_cast<std::size_t>(state.range(0)) * 8;
    std::vector<char> a(bytes, 1), b(bytes);
    for (auto _ : state) {
        std::memcpy(b.data(), a.data(), bytes);
        benchmark::DoNotOptimize(b.data());
        benchmark::ClobberMemory();
    }
}

} // namespace

BENCHMARK(InnerStopDragStep)->Arg(3)->Arg(10)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(InnerStopDragStepCloningHost)
    ->Arg(3)
    ->Arg(10)
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(CopyStopBytes)->Arg(3)->Arg(10)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK_MAIN();
