#include "kestotool/raster/Bands.h"
#include "kestotool/raster/Isa.h"
#include "kestotool/raster/PreparedPaint.h"
#include "kestotool/raster/Shading_p.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdlib>
#include <numbers>
#include <string>
#include <thread>
#include <vector>

using namespace KestoRaster;

namespace {

constexpr int W = 64;
constexpr int H = 48;

Rgba C(std::uint8_t r, std::uint8_t g, std::uint8_t b, std::uint8_t a = 255)
{
    return {r, g, b, a};
}

struct Named {
    const char* name;
    Paint paint;
};

Paint Make(Paint::Kind kind, std::vector<Point> points, std::vector<RampStop> stops, std::vector<Rgba> colours,
           bool transparency = false)
{
    Paint p;
    p.kind = kind;
    p.points = std::move(points);
    p.stops = std::move(stops);
    p.colours = std::move(colours);
    p.transparency = transparency;
    return p;
}

std::vector<Named> Paints()
{
    const std::vector<RampStop> ramp = {{0, C(255, 0, 0)}, {4000, C(0, 200, 50, 128)}, {10000, C(20, 40, 250)}};
    const std::vector<RampStop> levels = {{0, C(0, 0, 0)}, {10000, C(255, 255, 255)}};
    using K = Paint::Kind;
    std::vector<Named> all = {
        {"solid", Make(K::Solid, {}, {}, {C(10, 200, 30, 200)})},
        {"linear", Make(K::Linear, {{8, 8}, {50, 30}}, ramp, {})},
        {"radial", Make(K::Radial, {{30, 20}, {50, 20}}, ramp, {})},
        {"elliptical", Make(K::Elliptical, {{30, 20}, {55, 25}, {28, 5}}, ramp, {})},
        {"conical", Make(K::Conical, {{32, 24}, {50, 24}}, ramp, {})},
        {"square", Make(K::Square, {{30, 24}, {45, 30}, {25, 10}}, ramp, {})},
        {"three colour",
         Make(K::ThreeColour, {{5, 5}, {55, 8}, {10, 40}}, {}, {C(255, 0, 0), C(0, 255, 0), C(0, 0, 255, 100)})},
        {"four colour", Make(K::FourColour, {{4, 4}, {60, 10}, {8, 44}, {50, 40}}, {},
                             {C(255, 0, 0), C(0, 255, 0), C(0, 0, 255), C(255, 255, 0, 60)})},
        // Over the whole frame: rows inside the parallelogram, or on one side of an edge, are
        // painted by the fixed-point path (premultiplied, opaque and as a transparency).
        {"three colour covering", Make(K::ThreeColour, {{-30, -20}, {150, -10}, {-20, 120}}, {},
                                       {C(255, 0, 0), C(0, 255, 0), C(0, 0, 255, 100)})},
        {"three colour covering opaque",
         Make(K::ThreeColour, {{-30, -20}, {150, -10}, {-20, 120}}, {}, {C(250, 3, 0), C(0, 255, 40), C(7, 0, 255)})},
        {"three colour transparency", Make(K::ThreeColour, {{-30, -20}, {150, -10}, {-20, 120}}, {},
                                           {C(255, 255, 255), C(0, 0, 0), C(90, 90, 90)}, true)},
        {"linear transparency", Make(K::Linear, {{0, 0}, {64, 0}}, levels, {}, true)},
        {"plasma", Make(K::Plasma, {{3, 2}, {40, 10}, {0, 30}}, ramp, {})},
    };
    Paint bitmap = Make(K::Bitmap, {{5, 3}, {25, 8}, {2, 20}}, {}, {});
    auto image = std::make_shared<Paint::Image>();
    image->width = 4;
    image->height = 3;
    image->argb = {0xFFFF0000, 0x8000FF00, 0xFF0000FF, 0x00000000, 0xFFFFFFFF, 0xFF000000,
                   0x40FF8000, 0xFF123456, 0xC0C0C0C0, 0xFF00FFFF, 0xFFFF00FF, 0xFF808080};
    bitmap.image = image;
    all.push_back({"bitmap", bitmap});
    bitmap.nearest = true;
    bitmap.mirroredTiles = true;
    all.push_back({"bitmap, nearest, mirrored", bitmap});
    bitmap.nearest = false;
    bitmap.recolour = true;
    bitmap.stops = ramp;
    all.push_back({"bitmap recoloured", bitmap});
    Paint plasma =
        std::find_if(all.begin(), all.end(), [](const Named& n) { return n.paint.kind == K::Plasma; })->paint;
    plasma.mirroredTiles = true;
    plasma.plasma = {77, 90, 16};
    all.push_back({"plasma, mirrored, grainy", plasma});
    // Tiles wider than a row's block of 64 pixels, with a tile edge inside the image, one
    // stepping each way: sampled in fixed point.
    plasma.plasma.resolution = 24;
    plasma.points = {{20, 5}, {130, 25}, {15, 95}};
    all.push_back({"plasma, mirrored, wide", plasma});
    plasma.mirroredTiles = false;
    plasma.points = {{40, 5}, {-70, 25}, {45, 95}};
    all.push_back({"plasma, wide, leftwards", plasma});
    return all;
}

Paint PaintNamed(const std::string& name)
{
    for (const auto& [n, paint] : Paints())
        if (name == n)
            return paint;
    return {};
}

struct Image {
    Output format;
    int w, h;
    std::vector<std::uint32_t> words;
    std::vector<std::uint8_t> bytes;
    explicit Image(Output f, std::uint32_t fill = 0, int width = W, int height = H)
        : format(f), w(width), h(height), words(w * h, fill), bytes(w * h, static_cast<std::uint8_t>(fill))
    {
    }
    Target Of()
    {
        return format == Output::Argb32 ? Target{words.data(), w, h, w * 4, format}
                                        : Target{bytes.data(), w, h, w, format};
    }
    std::uint32_t At(int x, int y) const { return format == Output::Argb32 ? words[y * w + x] : bytes[y * w + x]; }
};

int ChannelDistance(std::uint32_t a, std::uint32_t b)
{
    int d = 0;
    for (int shift = 0; shift < 32; shift += 8)
        d = std::max(d, std::abs(static_cast<int>((a >> shift) & 0xFF) - static_cast<int>((b >> shift) & 0xFF)));
    return d;
}

// The largest channel step between neighbouring table entries: what a table kernel may be off by.
int TableStep(const PreparedPaint& p)
{
    int step = 0;
    const auto& t = p.Table();
    for (std::size_t i = 1; i < t.size(); ++i)
        step = std::max(step, ChannelDistance(t[i - 1], t[i]));
    return step;
}

const Clip kAll{0, 0, W, H};

} // namespace

// The largest channel distance between Render and the reference, and what it may be.
std::pair<int, int> AgainstReference(const Paint& paint, const Affine& placement, Output out, int w = W, int h = H)
{
    const PreparedPaint prepared(paint, placement, out);
    Image fast(out, 0, w, h), reference(out, 0, w, h);
    Render(prepared, fast.Of(), {0, 0, w, h});
    RenderReference(paint, placement, reference.Of(), {0, 0, w, h});
    int worst = 0;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            worst = std::max(worst, ChannelDistance(fast.At(x, y), reference.At(x, y)));
    // Table kernels within their table's step, direct kernels within 1, bitmaps within 2.
    const int direct = paint.kind == Paint::Kind::Bitmap ? 2 : 1;
    return {worst, prepared.IsRamp() ? TableStep(prepared) + 1 : direct};
}

// Runs check(isa) with each instruction set the machine has active, then restores the active one.
template <class Check>
void OnEveryIsa(Check check)
{
    const Isa active = ActiveIsa();
    for (const Isa isa : {Isa::Scalar, Isa::Avx2, Isa::Avx512}) {
        if (IsaAvailable(isa)) {
            SetActiveIsa(isa);
            check(isa);
        }
    }
    SetActiveIsa(active);
}

TEST(Render, EveryKindMatchesTheReferenceWithinItsTableStepInBothOutputsOnEveryIsa)
{
    const Affine rotated{0.9, 0.3, -0.25, 1.1, 3, -2};
    OnEveryIsa([&](Isa isa) {
        for (const auto& [name, paint] : Paints()) {
            for (const Output out : {Output::Argb32, Output::Mask8}) {
                for (const Affine& placement : {Affine{}, rotated}) {
                    const auto [worst, tolerance] = AgainstReference(paint, placement, out);
                    EXPECT_LE(worst, tolerance)
                        << name << (out == Output::Argb32 ? " argb " : " mask ") << IsaName(isa);
                }
            }
        }
    });
}

// Six rows 1,400 pixels long, as colour and as mask: within the tolerance of the reference, and
// a clip changes no pixel.
void ExpectLongRowsRight(const char* name, const Paint& paint, const Affine& placed, Isa isa)
{
    constexpr int wide = 1400, rows = 6;
    for (const Output out : {Output::Argb32, Output::Mask8}) {
        const auto [worst, tolerance] = AgainstReference(paint, placed, out, wide, rows);
        EXPECT_LE(worst, tolerance) << name << (paint.transparency ? " transparency" : "")
                                    << (out == Output::Argb32 ? " argb " : " mask ") << IsaName(isa);
        const PreparedPaint prepared(paint, placed, out);
        Image full(out, 0, wide, rows), part(out, 0, wide, rows);
        Render(prepared, full.Of(), {0, 0, wide, rows});
        Render(prepared, part.Of(), {333, 1, 901, 5});
        for (int x = 333; x < 901; ++x)
            ASSERT_EQ(part.At(x, 3), full.At(x, 3)) << name << " at " << x << " " << IsaName(isa);
    }
}

// Long rows cross the corner kinds' edges between blocks and inside them: every block, on
// whichever sides of the edges it lies, matches the reference, and a clip changes no pixel.
TEST(Render, LongCornerRowsMatchTheReferenceAcrossTheirEdges)
{
    const Affine turned{0.95, 0.31, -0.31, 0.95, 20, -15};
    Paint opaqueQuad = PaintNamed("four colour");
    opaqueQuad.colours.back().a = 255;
    std::vector<Named> paints = {{"four colour opaque", opaqueQuad}};
    for (const char* name :
         {"three colour", "three colour covering opaque", "three colour transparency", "four colour"})
        paints.push_back({name, PaintNamed(name)});
    for (Named& named : paints)
        named.paint.points = {{300, -40}, {700, 30}, {250, 90}, {800, 70}};
    // A quadrilateral far from a parallelogram: its levels curve along the rows.
    opaqueQuad.points = {{0, -40}, {1000, 10}, {100, 90}, {200, 30}};
    paints.push_back({"four colour opaque, curved", opaqueQuad});
    // Upright (not turned): the rows run along two of its edges' lines.
    opaqueQuad.points = {{300, -40}, {800, -40}, {300, 90}, {800, 90}};
    paints.push_back({"four colour opaque, upright", opaqueQuad});
    // Most of the rows inside it, far from its edges.
    opaqueQuad.points = {{40, -40}, {1250, -10}, {80, 80}, {1280, 60}};
    paints.push_back({"four colour opaque, wide", opaqueQuad});
    // Two pixels across: a block's levels run far out of 0..255 on either side of its edges.
    for (const auto& [name, from] :
         {Named{"three colour, tiny", PaintNamed("three colour covering opaque")},
          Named{"three colour transparency, tiny", PaintNamed("three colour transparency")}}) {
        paints.push_back({name, from});
        paints.back().paint.points = {{600, 0}, {601.5, 0.2}, {600.3, 1.5}};
    }
    // Each four-colour quadrilateral as a transparency too: its mask shows the levels.
    for (std::size_t k = 0, n = paints.size(); k < n; ++k) {
        if (paints[k].paint.kind == Paint::Kind::FourColour) {
            paints.push_back(paints[k]);
            paints.back().paint.transparency = true;
        }
    }
    OnEveryIsa([&](Isa isa) {
        for (const auto& [name, paint] : paints)
            ExpectLongRowsRight(name, paint, std::string(name).ends_with("upright") ? Affine{} : turned, isa);
    });
}

// Long ramp rows: a linear ramp's blocks inside the ramp, on its pads and where it is too steep
// for fixed point; a square ramp's blocks between the columns where its largest coordinate
// changes and across them; round ramps' blocks inside their rims, across them and past them.
TEST(Render, LongRampRowsMatchTheReferenceInsideAndAcrossTheirPieces)
{
    const std::vector<RampStop> stops = {{0, C(255, 0, 0, 30)}, {4000, C(0, 200, 50, 128)}, {10000, C(20, 40, 250)}};
    using K = Paint::Kind;
    std::vector<Named> paints = {
        {"linear, shallow", Make(K::Linear, {{100, 0}, {1200, 40}}, stops, {})},
        {"linear, leftwards", Make(K::Linear, {{1300, 10}, {50, -20}}, stops, {})},
        {"linear, steep", Make(K::Linear, {{600, 0}, {606, 2}}, stops, {})},
        {"linear, over 150 pixels", Make(K::Linear, {{600, 0}, {750, 10}}, stops, {})},
        {"square, centred in the rows", Make(K::Square, {{700, 3}, {1000, 60}, {650, -200}}, stops, {})},
        {"square, centred far off", Make(K::Square, {{-900, 400}, {800, 60}, {-1000, -900}}, stops, {})},
        // Past their rims on both sides of the rows: those blocks read the last entry alone.
        {"radial, rim across the rows", Make(K::Radial, {{700, 3}, {1000, 3}}, stops, {})},
        {"elliptical, rim across the rows", Make(K::Elliptical, {{700, 3}, {1100, 40}, {690, -150}}, stops, {})},
    };
    for (std::size_t k = 0, n = paints.size(); k < n; ++k) {
        paints.push_back(paints[k]);
        paints.back().paint.transparency = true;
    }
    OnEveryIsa([&](Isa isa) {
        for (const auto& [name, paint] : paints)
            for (const Affine& placed : {Affine{}, Affine{0.95, 0.31, -0.31, 0.95, 20, -15}})
                ExpectLongRowsRight(name, paint, placed, isa);
    });
}

// Blocks past a round ramp's rim are written with its last entry without computing their pixels:
// never a pixel the kernel would have given another entry. The last entry alone is white here
// (index 255 from t = 0.99804), so a pixel inside that by more than the square root estimate's
// error must be black and one past it white, on every set, at the pixel centres. The rim sweeps
// across the start of the block at column 1024 in quarter pixels.
TEST(Render, OnlyPixelsPastTheRimTakeTheLastEntry)
{
    constexpr int wide = 1400, rows = 4;
    const double radius = 300;
    OnEveryIsa([&](Isa isa) {
        for (double shift = -2; shift <= 2; shift += 0.25) {
            const Point centre{724 + shift, 2};
            const Paint paint = Make(Paint::Kind::Radial, {centre, {centre.x + radius, centre.y}},
                                     {{0, C(0, 0, 0)}, {9970, C(0, 0, 0)}, {10000, C(255, 255, 255)}}, {});
            Image image(Output::Argb32, 0, wide, rows);
            Render(PreparedPaint(paint, Affine{}, Output::Argb32), image.Of(), {0, 0, wide, rows});
            for (int y = 0; y < rows; ++y)
                for (int x = 0; x < wide; ++x) {
                    const double t = std::hypot(x + 0.5 - centre.x, y + 0.5 - centre.y) / radius;
                    if (t < 0.9975 || t > 0.9986) {
                        ASSERT_EQ(image.At(x, y) & 0xFFFFFF, t < 0.998 ? 0u : 0xFFFFFFu)
                            << x << ", " << y << " centre " << centre.x << " " << IsaName(isa);
                    }
                }
        }
    });
}

// A quadrilateral that is not convex folds: near the fold its levels have a cusp, which the
// block writers must leave to the per-pixel path, and beyond it lie points that the map cannot
// reach. Rows 850 .. 909 of a 1920-pixel frame, turned and scaled. Where its two roots swap, the
// levels jump; next to an edge's line a rise and a jump back can hide between samples.
TEST(Render, AFoldedQuadrilateralMatchesTheReference)
{
    Paint swapping =
        Make(Paint::Kind::FourColour, {{541.38, 206.04}, {602.49, 28.32}, {0.24, -101.5}, {751.83, 585.09}}, {},
             {C(55, 145, 235, 150), C(214, 253, 203, 33), C(158, 135, 184, 188), C(241, 76, 216, 139)});
    const Affine swapped{-0.337, -1.0318, 1.0318, -0.337, -46.47, 515.69};
    OnEveryIsa([&](Isa isa) {
        const auto [worst, tolerance] = AgainstReference(swapping, swapped, Output::Mask8, 640, 4);
        EXPECT_LE(worst, tolerance) << IsaName(isa);
    });
    const double c = 1.3 * std::cos(std::numbers::pi / 6), s = 1.3 * std::sin(std::numbers::pi / 6);
    const Affine turned{c, s, -s, c, 960 - (c * 960 - s * 540), 540 - (s * 960 + c * 540) - 850};
    Paint paint = PaintNamed("four colour");
    paint.colours = {C(200, 10, 10), C(10, 200, 10), C(10, 10, 200), C(200, 200, 10)};
    paint.points = {{400, 300}, {1500, 350}, {450, 800}, {900, 600}};
    OnEveryIsa([&](Isa isa) {
        for (const bool transparency : {false, true}) {
            paint.transparency = transparency;
            for (const Output out : {Output::Argb32, Output::Mask8}) {
                const auto [worst, tolerance] = AgainstReference(paint, turned, out, 1920, 60);
                EXPECT_LE(worst, tolerance)
                    << transparency << (out == Output::Argb32 ? " argb " : " mask ") << IsaName(isa);
            }
        }
    });
}

TEST(Render, AClipPaintsOnlyItsPixelsAndASubRectangleEqualsTheFullRender)
{
    const Clip inner{10, 7, 41, 30};
    for (const auto& [name, paint] : Paints()) {
        SCOPED_TRACE(name);
        const PreparedPaint prepared(paint, {}, Output::Argb32);
        Image full(Output::Argb32), part(Output::Argb32, 0xDEADBEEF);
        Render(prepared, full.Of(), kAll);
        Render(prepared, part.Of(), inner);
        Render(prepared, part.Of(), {-5, -5, 0, H + 9}); // outside the target: nothing
        for (int y = 0; y < H; ++y) {
            for (int x = 0; x < W; ++x) {
                const bool in = x >= inner.x0 && x < inner.x1 && y >= inner.y0 && y < inner.y1;
                ASSERT_EQ(part.At(x, y), in ? full.At(x, y) : 0xDEADBEEFu) << x << "," << y;
                const std::uint32_t v = full.At(x, y);
                const std::uint32_t a = v >> 24;
                ASSERT_TRUE(((v >> 16) & 0xFF) <= a && ((v >> 8) & 0xFF) <= a && (v & 0xFF) <= a) << "premultiplied";
            }
        }
    }
}

TEST(Render, GeometryLandsWhereTheKindsSay)
{
    const auto pixel = [](const Paint& p, double x, double y) {
        Image img(Output::Argb32);
        // A one-pixel clip centred on (x, y): the paint placed so that (x, y) is that centre.
        RenderReference(p, {1, 0, 0, 1, 10.5 - x, 10.5 - y}, img.Of(), {10, 10, 11, 11});
        return img.At(10, 10);
    };
    const auto paints = Paints();
    const Paint& three = paints[6].paint;
    EXPECT_EQ(pixel(three, 5, 5), 0xFFFF0000u);
    EXPECT_EQ(pixel(three, 55, 8), 0xFF00FF00u);
    EXPECT_EQ(pixel(three, 10, 40), 0x64000064u); // blue at alpha 100, premultiplied
    const Paint& four = paints[7].paint;
    EXPECT_EQ(pixel(four, 4, 4), 0xFFFF0000u);
    EXPECT_EQ(pixel(four, 60, 10), 0xFF00FF00u);
    EXPECT_EQ(pixel(four, 8, 44), 0xFF0000FFu);
    EXPECT_EQ(pixel(four, 50, 40), 0x3C3C3C00u); // yellow at alpha 60
    const Paint& linear = paints[1].paint;
    EXPECT_EQ(pixel(linear, -100, -50), pixel(linear, 8, 8)) << "padded before the start";
    EXPECT_EQ(pixel(linear, 500, 300), 0xFF1428FAu) << "padded past the end";
    // Conical: symmetric about C->R, position 5000 at a right angle either way round.
    const Paint& conical = paints[4].paint;
    EXPECT_EQ(pixel(conical, 40, 16), pixel(conical, 40, 32));
    EXPECT_EQ(pixel(conical, 32, 10), pixel(conical, 32, 38));
    Paint half = conical;
    half.stops = {{0, C(0, 0, 0)}, {5000, C(200, 100, 0)}, {5000, C(0, 0, 0)}, {10000, C(0, 0, 0)}};
    EXPECT_EQ(pixel(half, 32, 0), 0xFF000000u);
    EXPECT_EQ(pixel(half, 32.01, 10), 0xFFC86400u) << "just short of the right angle";
}

TEST(Render, ThePlasmaIsAPureFunctionOfItsSeedAndTilesSeamlessly)
{
    const Paint::Plasma a{7, 60, 32};
    EXPECT_EQ(Shading::PlasmaTile(a), Shading::PlasmaTile(a));
    EXPECT_NE(Shading::PlasmaTile(a), Shading::PlasmaTile({8, 60, 32}));
    const auto tile = Shading::PlasmaTile(a);
    EXPECT_EQ(*std::min_element(tile.begin(), tile.end()), 0.0f);
    EXPECT_EQ(*std::max_element(tile.begin(), tile.end()), 1.0f);
    // Repeated tiles meet without a seam: the value hardly moves across the edge.
    const double edge = std::abs(Shading::PlasmaValue(tile, 32, {0.9999, 0.5}, false) -
                                 Shading::PlasmaValue(tile, 32, {0.0001, 0.5}, false));
    EXPECT_LT(edge, 0.01);
}

TEST(Render, APaintPreparedAgainWithTheSameColoursSharesItsTable)
{
    const Paint linear = PaintNamed("linear");
    const PreparedPaint first(linear, {}, Output::Argb32);
    Paint moved = linear;
    moved.points[1] = {60, 40};
    const PreparedPaint again(moved, {2, 0, 0, 2, 0, 0}, Output::Argb32, &first);
    EXPECT_TRUE(again.SharesTableWith(first));
    Paint recoloured = linear;
    recoloured.stops[1].colour.r = 7;
    EXPECT_FALSE(PreparedPaint(recoloured, {}, Output::Argb32, &first).SharesTableWith(first));

    // A ramp without stops shows its colours: a new colour is a new table, and new pixels.
    Paint stopless = linear;
    stopless.stops.clear();
    stopless.colours = {C(200, 10, 10)};
    const PreparedPaint red(stopless, {}, Output::Argb32);
    stopless.colours = {C(10, 10, 200)};
    const PreparedPaint blue(stopless, {}, Output::Argb32, &red);
    std::uint32_t pixel = 0;
    Render(blue, {&pixel, 1, 1, 4, Output::Argb32}, {0, 0, 1, 1});
    EXPECT_EQ(pixel, 0xFF0A0AC8u);

    // A bitmap's texels likewise, until its image or its recolouring changes.
    const Paint bitmap = PaintNamed("bitmap");
    const PreparedPaint placed(bitmap, {}, Output::Argb32);
    Paint shifted = bitmap;
    shifted.points[0] = {9, 9};
    shifted.image = std::make_shared<Paint::Image>(*bitmap.image);
    EXPECT_TRUE(PreparedPaint(shifted, {}, Output::Argb32, &placed).SharesTexelsWith(placed));
    shifted.recolour = true;
    shifted.stops = recoloured.stops;
    EXPECT_FALSE(PreparedPaint(shifted, {}, Output::Argb32, &placed).SharesTexelsWith(placed));
}

// Bands rendered at once on 1, 2 and 3 threads give the one-thread frame byte for byte, for
// every kind in both outputs, whole and clipped.
TEST(Render, BandsOnSeveralThreadsGiveTheOneThreadFrame)
{
    constexpr int w = W * 6, h = H * 6; // big enough to be cut into bands
    const Affine larger{6, 0, 0, 6, 0, 0};
    for (const auto& [name, paint] : Paints()) {
        for (const Output out : {Output::Argb32, Output::Mask8}) {
            SCOPED_TRACE(std::string(name) + (out == Output::Argb32 ? " argb" : " mask"));
            const PreparedPaint prepared(paint, larger, out);
            const int bytes = out == Output::Argb32 ? 4 : 1;
            std::vector<std::uint8_t> one(static_cast<std::size_t>(w) * h * bytes);
            Render(prepared, {one.data(), w, h, w * bytes, out}, {0, 0, w, h});
            for (const int threads : {1, 2, 3}) {
                SetRenderThreads(threads);
                for (const Clip clip : {Clip{0, 0, w, h}, Clip{-9, 17, w - 31, h + 40}}) {
                    std::vector<std::uint8_t> banded(one.size(), 0xA5), expected(one.size(), 0xA5);
                    for (int y = std::max(clip.y0, 0); y < std::min(clip.y1, h); ++y)
                        for (int x = std::max(clip.x0, 0); x < std::min(clip.x1, w); ++x)
                            for (int b = 0; b < bytes; ++b) {
                                const std::size_t i = (static_cast<std::size_t>(y) * w + x) * bytes + b;
                                expected[i] = one[i];
                            }
                    RenderInBands(prepared, {banded.data(), w, h, w * bytes, out}, clip);
                    EXPECT_TRUE(banded == expected) << threads << " threads, clip from " << clip.x0 << "," << clip.y0;
                }
            }
            SetRenderThreads(0);
        }
    }
}

// Callers on several threads at once (the page's layers are built off the window's thread), each
// handing out frames just big enough to be banded, share the helpers and get whole frames back.
TEST(Render, ManyCallersShareTheBandThreadsAndEachGetsItsWholeFrame)
{
    constexpr int w = 256, h = 256;
    const PreparedPaint prepared(PaintNamed("solid"), Affine{}, Output::Argb32);
    std::vector<std::uint8_t> one(static_cast<std::size_t>(w) * h * 4);
    Render(prepared, {one.data(), w, h, w * 4, Output::Argb32}, {0, 0, w, h});
    SetRenderThreads(6);
    std::atomic<int> wrong = 0;
    std::vector<std::thread> callers;
    for (int c = 0; c < 3; ++c)
        callers.emplace_back([&] {
            std::vector<std::uint8_t> frame(one.size());
            for (int i = 0; i < 100; ++i) {
                RenderInBands(prepared, {frame.data(), w, h, w * 4, Output::Argb32}, {0, 0, w, h});
                wrong += frame != one;
            }
        });
    for (std::thread& t : callers)
        t.join();
    SetRenderThreads(0);
    EXPECT_EQ(wrong, 0);
}
