#include "kestotool/raster/Path.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

using namespace KestoRaster;

namespace {

constexpr int W = 40;
constexpr int H = 30;

struct Mask {
    std::vector<std::uint8_t> bytes = std::vector<std::uint8_t>(W * H, 7);
    Target Of() { return {bytes.data(), W, H, W, Output::Mask8}; }
    int At(int x, int y) const { return bytes[y * W + x]; }
    double Area() const
    {
        double sum = 0;
        for (const std::uint8_t b : bytes)
            sum += b / 255.0;
        return sum;
    }
};

Path Polygon(std::initializer_list<Point> points)
{
    Path p;
    bool first = true;
    for (const Point q : points) {
        if (first)
            p.MoveTo(q);
        else
            p.LineTo(q);
        first = false;
    }
    p.Close();
    return p;
}

Mask Covered(const Path& path, Clip clip = {0, 0, W, H}, const Affine& place = {})
{
    Mask m;
    RenderCoverage(path, place, m.Of(), clip);
    return m;
}

} // namespace

TEST(Path, PixelAlignedEdgesAreExactAndHalfPixelEdgesHalfCovered)
{
    const Mask aligned = Covered(Polygon({{2, 3}, {10, 3}, {10, 8}, {2, 8}}));
    for (int y = 0; y < H; ++y)
        for (int x = 0; x < W; ++x)
            ASSERT_EQ(aligned.At(x, y), (x >= 2 && x < 10 && y >= 3 && y < 8) ? 255 : 0) << x << "," << y;
    const Mask half = Covered(Polygon({{2.5, 3}, {10.5, 3}, {10.5, 8}, {2.5, 8}}));
    EXPECT_EQ(half.At(2, 5), 128);
    EXPECT_EQ(half.At(5, 5), 255);
    EXPECT_EQ(half.At(10, 5), 128);
    // A triangle's diagonal halves the pixels it crosses.
    const Mask triangle = Covered(Polygon({{0, 0}, {10, 0}, {0, 10}}));
    EXPECT_EQ(triangle.At(3, 5), 255);
    EXPECT_EQ(triangle.At(4, 5), 128);
    EXPECT_EQ(triangle.At(5, 5), 0);
}

TEST(Path, ACircleOfCubicsCoversItsArea)
{
    const double r = 12, cx = 20, cy = 15;
    const Path circle = Path::Ellipse({cx, cy}, r, r);
    EXPECT_NEAR(Covered(circle).Area(), M_PI * r * r, 0.005 * M_PI * r * r);
    // Placed by a transform: half as wide again, about the same centre.
    EXPECT_NEAR(Covered(circle, {0, 0, W, H}, {1.5, 0, 0, 1, -0.5 * cx, 0}).Area(), 1.5 * M_PI * r * r,
                0.0075 * M_PI * r * r);
}

TEST(Path, WindingDecidesHolesAndOverlaps)
{
    Path ring = Polygon({{2, 2}, {20, 2}, {20, 20}, {2, 20}});
    ring.MoveTo({6, 6}); // the inner square the other way round: a hole
    ring.LineTo({6, 14});
    ring.LineTo({14, 14});
    ring.LineTo({14, 6});
    ring.Close();
    const Mask holed = Covered(ring);
    EXPECT_EQ(holed.At(10, 10), 0);
    EXPECT_EQ(holed.At(4, 10), 255);
    Path twice = Polygon({{2, 2}, {20, 2}, {20, 20}, {2, 20}});
    twice.MoveTo({6, 6});
    twice.LineTo({14, 6});
    twice.LineTo({14, 14});
    twice.LineTo({6, 14});
    twice.Close();
    EXPECT_EQ(Covered(twice).At(10, 10), 255); // the same way round: still just covered
    // After Close a line starts again from the closed piece's first point.
    Path again = Polygon({{2, 2}, {10, 2}, {10, 10}});
    again.LineTo({10, 10});
    again.LineTo({2, 10});
    const Mask both = Covered(again);
    EXPECT_EQ(both.At(8, 4), 255); // the first triangle
    EXPECT_EQ(both.At(3, 8), 255); // the second, from (2, 2) to (10, 10) and (2, 10)
}

TEST(Path, AClipWritesOnlyItsPixelsAndMatchesTheFullRender)
{
    const Path shape = Polygon({{-30, 4.3}, {33.7, 1.2}, {45, 27.5}, {5.2, 22}});
    const Mask full = Covered(shape);
    const Mask part = Covered(shape, {11, 5, 29, 19});
    for (int y = 0; y < H; ++y)
        for (int x = 0; x < W; ++x) {
            const bool inside = x >= 11 && x < 29 && y >= 5 && y < 19;
            ASSERT_EQ(part.At(x, y), inside ? full.At(x, y) : 7) << x << "," << y;
        }
}

TEST(Path, FarAndBrokenCoordinatesStayHarmless)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(Covered(Polygon({{1, 1}, {nan, 5}, {9, 9}})).Area(), 0.0);
    const Mask everything = Covered(Polygon({{-1e300, -1e300}, {1e300, -1e300}, {1e300, 1e300}, {-1e300, 1e300}}));
    EXPECT_EQ(everything.At(0, 0), 255);
    EXPECT_EQ(everything.At(W - 1, H - 1), 255);
    EXPECT_EQ(Covered(Path()).Area(), 0.0);
    // An edge that ends on the clip's left side, where interpolating along it rounds to a hair
    // left of the side (the sanitizer saw the cell before the first row being touched).
    const Mask sliver = Covered(Polygon({{1.859062658947177, 0.8932890709584587}, {0, 0.9864552986842997}, {3, 3}}));
    EXPECT_GT(sliver.Area(), 0.0);
    EXPECT_LT(sliver.Area(), 3.0);
}

TEST(Path, ManyCrossingCornersCostTheirLengthsAndBandsMeetWithoutSeams)
{
    // A hostile outline: corners scattered at random, every edge crossing many others.
    Path scribble;
    unsigned seed = 12345;
    const auto next = [&seed](int range) {
        seed = seed * 1103515245u + 12345u;
        return static_cast<double>((seed >> 8) % (range * 64)) / 64;
    };
    constexpr int kCorners = 2000;
    for (int i = 0; i < kCorners; ++i)
        scribble.LineTo({next(W), next(H)});
    scribble.Close();
    Mask m;
    const std::size_t work = RenderCoverage(scribble, {}, m.Of(), {0, 0, W, H});
    // Each edge touches at most a cell per row it spans and per column it passes, plus one per
    // row; then every pixel is written once. Testing each pixel against each edge would cost
    // ten times this.
    EXPECT_LE(work, std::size_t{kCorners} * (2 * H + W) + (W + 2) * H);
    EXPECT_GT(m.Area(), 0.5 * W * H);

    // A clip so wide that a band is three rows: the same coverage as in one band.
    constexpr int kWide = 90000;
    std::vector<std::uint8_t> wide(static_cast<std::size_t>(kWide) * H);
    RenderCoverage(scribble, {}, {wide.data(), kWide, H, kWide, Output::Mask8}, {0, 0, kWide, H});
    for (int y = 0; y < H; ++y)
        for (int x = 0; x < W; ++x)
            ASSERT_EQ(wide[static_cast<std::size_t>(y) * kWide + x], m.At(x, y)) << x << "," << y;
}
