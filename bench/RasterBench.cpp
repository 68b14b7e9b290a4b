// One 1920 x 1080 frame per iteration, single thread: every paint kind as colour and as mask,
// with 2, 8 and 64 stops (and 1,000 for linear), the corner kinds' colours with opaque corners
// and with one translucent corner, axis-aligned and rotated 30 degrees and scaled; beside them,
// in the same process, pixman (SRC) for linear, radial, conical and a bilinear rotated and
// scaled 256 x 256 repeated tile, and a memset of the frame. Pixels are
// reported as items; the table printed at the end gives each row's ratio to its pixman
// counterpart (or to memset, or for 1,000 stops to the 2-stop row), which stays stable on a
// noisy machine. Then 3840 x 2160 frames in bands on 1, 2 and every thread (ratio to one
// thread), and 7680 x 4320 frames beside a memset of theirs.
#include "kestotool/raster/Bands.h"
#include "kestotool/raster/Isa.h"
#include "kestotool/raster/PreparedPaint.h"

#include <benchmark/benchmark.h>
#include <pixman.h>

#include <cmath>
#include <cstring>
#include <iostream>
#include <map>
#include <numbers>
#include <string>
#include <vector>

using namespace KestoRaster;

namespace {

constexpr int W = 1920;
constexpr int H = 1080;

std::vector<RampStop> Stops(int n, bool levels)
{
    std::vector<RampStop> stops;
    for (int i = 0; i < n; ++i) {
        const auto v = static_cast<std::uint8_t>(i * 255 / (n - 1));
        const Rgba c = levels ? Rgba{v, v, v, 255}
                              : Rgba{v, static_cast<std::uint8_t>(255 - v), static_cast<std::uint8_t>(v / 2 + 60), 255};
        stops.push_back({i * 10000.0 / (n - 1), c});
    }
    return stops;
}

// translucent: the corner kinds' last corner has alpha 200 (premultiplied output per pixel).
Paint KindPaint(Paint::Kind kind, int stops, bool mask, bool translucent)
{
    Paint p;
    p.kind = kind;
    p.transparency = mask;
    p.stops = Stops(stops, mask);
    const Point c{W / 2.0, H / 2.0};
    switch (kind) {
    case Paint::Kind::Linear: p.points = {{100, 200}, {1800, 900}}; break;
    case Paint::Kind::Radial: p.points = {c, {c.x + 700, c.y}}; break;
    case Paint::Kind::Conical: p.points = {c, {c.x + 400, c.y - 100}}; break;
    case Paint::Kind::Elliptical:
    case Paint::Kind::Square: p.points = {c, {c.x + 800, c.y + 100}, {c.x - 80, c.y + 450}}; break;
    case Paint::Kind::ThreeColour: p.points = {{100, 100}, {1800, 150}, {150, 1000}}; break;
    case Paint::Kind::FourColour: p.points = {{100, 100}, {1800, 150}, {150, 1000}, {1700, 950}}; break;
    case Paint::Kind::Plasma: p.points = {{0, 0}, {512, 0}, {0, 512}}; break;
    case Paint::Kind::Bitmap: {
        p.points = {{0, 0}, {256, 0}, {0, 256}};
        auto image = std::make_shared<Paint::Image>();
        image->width = image->height = 256;
        for (int i = 0; i < 256 * 256; ++i)
            image->argb.push_back(0xFF000000u | static_cast<std::uint32_t>(i * 2654435761u >> 8));
        p.image = image;
        break;
    }
    case Paint::Kind::Solid: break;
    }
    p.colours = {{200, 10, 10, 255}, {10, 200, 10, 255}, {10, 10, 200, 255}, {200, 200, 10, 255}};
    if (translucent)
        p.colours[kind == Paint::Kind::ThreeColour ? 2 : 3].a = 200;
    return p;
}

// Rotated 30 degrees about the frame's centre and scaled by 1.3.
Affine Rotated()
{
    const double a = std::numbers::pi / 6, s = 1.3;
    const double cx = W / 2.0, cy = H / 2.0;
    Affine t{s * std::cos(a), s * std::sin(a), -s * std::sin(a), s * std::cos(a), 0, 0};
    t.e = cx - (t.a * cx + t.c * cy);
    t.f = cy - (t.b * cx + t.d * cy);
    return t;
}

void Kesto(benchmark::State& state, Paint::Kind kind, bool mask, int stops, bool rotated, bool translucent)
{
    const Paint paint = KindPaint(kind, stops, mask, translucent);
    const Output out = mask ? Output::Mask8 : Output::Argb32;
    const PreparedPaint prepared(paint, rotated ? Rotated() : Affine{}, out);
    std::vector<std::uint32_t> frame(static_cast<std::size_t>(W) * H);
    const Target target{frame.data(), W, H, mask ? W : W * 4, out};
    for (auto _ : state) {
        Render(prepared, target, {0, 0, W, H});
        benchmark::DoNotOptimize(frame.data());
    }
    state.SetItemsProcessed(state.iterations() * W * H);
}

pixman_fixed_t Fixed(double v)
{
    return pixman_double_to_fixed(v);
}

std::vector<pixman_gradient_stop_t> PixmanStops(int n)
{
    std::vector<pixman_gradient_stop_t> out;
    for (const RampStop& s : Stops(n, false))
        out.push_back({Fixed(s.position / 10000.0),
                       {static_cast<std::uint16_t>(s.colour.r * 257), static_cast<std::uint16_t>(s.colour.g * 257),
                        static_cast<std::uint16_t>(s.colour.b * 257), 0xFFFF}});
    return out;
}

void Pixman(benchmark::State& state, const std::string& what, int stops, bool rotated)
{
    std::vector<std::uint32_t> frame(static_cast<std::size_t>(W) * H);
    pixman_image_t* dst = pixman_image_create_bits(PIXMAN_a8r8g8b8, W, H, frame.data(), W * 4);
    const auto ps = PixmanStops(stops);
    pixman_image_t* src = nullptr;
    std::vector<std::uint32_t> tile;
    if (what == "linear") {
        const pixman_point_fixed_t p1{Fixed(100), Fixed(200)}, p2{Fixed(1800), Fixed(900)};
        src = pixman_image_create_linear_gradient(&p1, &p2, ps.data(), static_cast<int>(ps.size()));
    } else if (what == "radial") {
        const pixman_point_fixed_t c{Fixed(W / 2.0), Fixed(H / 2.0)};
        src = pixman_image_create_radial_gradient(&c, &c, 0, Fixed(700), ps.data(), static_cast<int>(ps.size()));
    } else if (what == "conical") {
        const pixman_point_fixed_t c{Fixed(W / 2.0), Fixed(H / 2.0)};
        src = pixman_image_create_conical_gradient(&c, Fixed(15), ps.data(), static_cast<int>(ps.size()));
    } else {
        tile.resize(256 * 256);
        for (std::size_t i = 0; i < tile.size(); ++i)
            tile[i] = 0xFF000000u | static_cast<std::uint32_t>(i * 2654435761u >> 8);
        src = pixman_image_create_bits(PIXMAN_a8r8g8b8, 256, 256, tile.data(), 256 * 4);
        pixman_image_set_filter(src, PIXMAN_FILTER_BILINEAR, nullptr, 0);
    }
    pixman_image_set_repeat(src, what == "tile" ? PIXMAN_REPEAT_NORMAL : PIXMAN_REPEAT_PAD);
    if (rotated) {
        const Affine inv = Rotated().Inverse();
        pixman_transform_t t{{{Fixed(inv.a), Fixed(inv.c), Fixed(inv.e)},
                              {Fixed(inv.b), Fixed(inv.d), Fixed(inv.f)},
                              {0, 0, pixman_fixed_1}}};
        pixman_image_set_transform(src, &t);
    }
    for (auto _ : state) {
        pixman_image_composite32(PIXMAN_OP_SRC, src, nullptr, dst, 0, 0, 0, 0, 0, 0, W, H);
        benchmark::DoNotOptimize(frame.data());
    }
    state.SetItemsProcessed(state.iterations() * W * H);
    pixman_image_unref(src);
    pixman_image_unref(dst);
}

// A frame of w x h in bands on threads (the 1920 x 1080 paint scaled to the frame).
void KestoBands(benchmark::State& state, Paint::Kind kind, int w, int h, int threads)
{
    const Paint paint = KindPaint(kind, 8, false, false);
    const PreparedPaint prepared(paint, Affine{double(w) / W, 0, 0, double(h) / H, 0, 0}, Output::Argb32);
    std::vector<std::uint32_t> frame(static_cast<std::size_t>(w) * h);
    const Target target{frame.data(), w, h, w * 4, Output::Argb32};
    SetRenderThreads(threads);
    for (auto _ : state) {
        RenderInBands(prepared, target, {0, 0, w, h});
        benchmark::DoNotOptimize(frame.data());
    }
    SetRenderThreads(0);
    state.SetItemsProcessed(state.iterations() * w * h);
}

void Memset(benchmark::State& state, int w, int h)
{
    std::vector<std::uint32_t> frame(static_cast<std::size_t>(w) * h);
    for (auto _ : state) {
        std::memset(frame.data(), 0x5A, frame.size() * 4);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * w * h);
}

const char* Name(Paint::Kind k)
{
    switch (k) {
    case Paint::Kind::Linear: return "linear";
    case Paint::Kind::Radial: return "radial";
    case Paint::Kind::Elliptical: return "elliptical";
    case Paint::Kind::Conical: return "conical";
    case Paint::Kind::Square: return "square";
    case Paint::Kind::ThreeColour: return "three-colour";
    case Paint::Kind::FourColour: return "four-colour";
    case Paint::Kind::Plasma: return "plasma";
    case Paint::Kind::Bitmap: return "bitmap";
    case Paint::Kind::Solid: return "solid";
    }
    return "?";
}

// Which pixman row a kind is compared with.
std::string Counterpart(Paint::Kind k)
{
    switch (k) {
    case Paint::Kind::Linear: return "linear";
    case Paint::Kind::Radial:
    case Paint::Kind::Elliptical: return "radial";
    case Paint::Kind::Conical: return "conical";
    case Paint::Kind::Bitmap: return "tile";
    default: return "";
    }
}

// Collects each row's pixels per second, then prints the ratio table.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name != "median")
                continue;
            const auto items = run.counters.find("items_per_second");
            if (items != run.counters.end())
                rates[run.run_name.function_name + run.run_name.args] = items->second.value;
        }
    }
    std::map<std::string, double> rates;
};

} // namespace

int main(int argc, char** argv)
{
    const Paint::Kind kinds[] = {Paint::Kind::Linear,     Paint::Kind::Radial, Paint::Kind::Elliptical,
                                 Paint::Kind::Conical,    Paint::Kind::Square, Paint::Kind::ThreeColour,
                                 Paint::Kind::FourColour, Paint::Kind::Plasma, Paint::Kind::Bitmap};
    std::vector<std::string> rows;
    for (const Paint::Kind kind : kinds) {
        const bool corners = kind == Paint::Kind::ThreeColour || kind == Paint::Kind::FourColour;
        const bool ramp = !corners && kind != Paint::Kind::Bitmap;
        for (const bool mask : {false, true}) {
            // A 1,000-stop linear gradient shows that the stop count costs only the table.
            const std::vector<int> counts = kind == Paint::Kind::Linear ? std::vector<int>{2, 8, 64, 1000}
                                            : ramp                      ? std::vector<int>{2, 8, 64}
                                                                        : std::vector<int>{2};
            for (const int stops : counts) {
                for (const bool translucent : {false, true}) {
                    if (translucent && (!corners || mask))
                        continue;
                    const std::string variant = !corners      ? "/stops:" + std::to_string(stops)
                                                : mask        ? "/levels"
                                                : translucent ? "/translucent"
                                                              : "/opaque";
                    for (const bool rotated : {false, true}) {
                        const std::string name = std::string("kesto/") + Name(kind) + (mask ? "/mask" : "/colour") +
                                                 variant + (rotated ? "/rotated" : "/aligned");
                        benchmark::RegisterBenchmark(name.c_str(), Kesto, kind, mask, stops, rotated, translucent)
                            ->Unit(benchmark::kMillisecond);
                        rows.push_back(name);
                    }
                }
            }
        }
    }
    for (const std::string what : {"linear", "radial", "conical", "tile"})
        for (const bool rotated : {false, true})
            benchmark::RegisterBenchmark(("pixman/" + what + (rotated ? "/rotated" : "/aligned")).c_str(), Pixman, what,
                                         8, rotated)
                ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("memset", Memset, W, H)->Unit(benchmark::kMillisecond);
    // Every core at 4K, each row against the same kind on one thread; at 8K, where the frame
    // goes to memory, against a memset of that frame.
    std::vector<std::pair<std::string, std::string>> against;
    const int cores = RenderThreads();
    for (const Paint::Kind kind : {Paint::Kind::Linear, Paint::Kind::Radial, Paint::Kind::FourColour}) {
        const std::string base = std::string("kesto-4k/") + Name(kind) + "/threads:1";
        std::vector<int> counts{1, 2};
        if (cores > 2)
            counts.push_back(cores);
        for (const int threads : counts) {
            const std::string name = std::string("kesto-4k/") + Name(kind) + "/threads:" + std::to_string(threads);
            benchmark::RegisterBenchmark(name.c_str(), KestoBands, kind, 3840, 2160, threads)
                ->Unit(benchmark::kMillisecond)
                ->UseRealTime();
            if (threads != 1)
                against.emplace_back(name, base);
        }
    }
    benchmark::RegisterBenchmark("memset-8k", Memset, 7680, 4320)->Unit(benchmark::kMillisecond);
    for (const Paint::Kind kind : {Paint::Kind::Linear, Paint::Kind::Radial})
        for (const int threads : {1, cores}) {
            const std::string name = std::string("kesto-8k/") + Name(kind) + "/threads:" + std::to_string(threads);
            if (threads == cores && cores == 1)
                continue;
            benchmark::RegisterBenchmark(name.c_str(), KestoBands, kind, 7680, 4320, threads)
                ->Unit(benchmark::kMillisecond)
                ->UseRealTime();
            against.emplace_back(name, "memset-8k");
        }

    // Which kernels ran: KESTO_RASTER_ISA names a set, but one the processor lacks gives the best.
    benchmark::AddCustomContext("kernels", KestoRaster::IsaName(KestoRaster::ActiveIsa()));
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    std::cout << "\n"
              << "row" << std::string(44, ' ') << "Mpix/s   ratio\n";
    const auto rate = [&](const std::string& name) {
        for (const auto& [key, value] : reporter.rates)
            if (key.rfind(name, 0) == 0)
                return value;
        return 0.0;
    };
    for (const std::string& row : rows) {
        const double mine = rate(row);
        if (mine == 0)
            continue;
        std::string base = "memset";
        for (const Paint::Kind kind : kinds)
            if (row.find(std::string("/") + Name(kind) + "/") != std::string::npos && !Counterpart(kind).empty())
                base = "pixman/" + Counterpart(kind) +
                       (row.find("rotated") != std::string::npos ? "/rotated" : "/aligned");
        if (const auto many = row.find("stops:1000"); many != std::string::npos)
            base = std::string(row).replace(many, 10, "stops:2");
        const double theirs = rate(base);
        std::printf("%-48s %8.0f  %6.2fx %s\n", row.c_str(), mine / 1e6, theirs > 0 ? mine / theirs : 0.0,
                    base.c_str());
    }
    for (const auto& [row, base] : against) {
        const double mine = rate(row), theirs = rate(base);
        if (mine > 0)
            std::printf("%-48s %8.0f  %6.2fx %s\n", row.c_str(), mine / 1e6, theirs > 0 ? mine / theirs : 0.0,
                        base.c_str());
    }
    return 0;
}
