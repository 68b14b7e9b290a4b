#include "kestotool/exchange/SvgPaint.h"

#include "kestotool/gdi/CLtBitmap.h"
#include "kestotool/gdi/PngFile.h"
#include "kestotool/raster/PreparedPaint.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <numeric>
#include <regex>
#include <string>
#include <vector>

using KestoRaster::Paint;
using KestoRaster::RampStop;
using KestoTool::SvgPaint;

namespace {

const std::vector<RampStop> kRedToBlue{{0, {200, 30, 40, 255}}, {10000, {30, 40, 150, 128}}};

Paint Ramp(Paint::Kind kind, std::vector<KestoRaster::Point> points)
{
    Paint paint;
    paint.kind = kind;
    paint.points = std::move(points);
    paint.stops = kRedToBlue;
    return paint;
}

// The stops an element holds: offset and one channel (red).
std::vector<std::pair<double, int>> Reds(const std::string& svg)
{
    std::vector<std::pair<double, int>> out;
    const std::regex stop(R"x(<stop offset="([^"]+)" stop-color="#([0-9a-f]{2}))x");
    for (auto it = std::sregex_iterator(svg.begin(), svg.end(), stop); it != std::sregex_iterator(); ++it)
        out.emplace_back(std::stod((*it)[1]), std::stoi((*it)[2], nullptr, 16));
    return out;
}

} // namespace

TEST(SvgPaint, TheKindsSvgHasBecomeItsGradientsInUserSpace)
{
    struct Row {
        Paint paint;
        const char* opening; // the element's opening tag, in full
    };
    const Row rows[] = {
        {Ramp(Paint::Kind::Linear, {{10, 20}, {110, 20.5}}),
         R"x(<linearGradient id="g" gradientUnits="userSpaceOnUse" x1="10" y1="20" x2="110" y2="20.5">)x"},
        {Ramp(Paint::Kind::Radial, {{50, 50}, {80, 90}}),
         R"x(<radialGradient id="g" gradientUnits="userSpaceOnUse" cx="50" cy="50" r="50">)x"},
        // A skewed ellipse: its axes are the transform's columns.
        {Ramp(Paint::Kind::Elliptical, {{50, 50}, {150, 50}, {70, 90}}),
         R"x(<radialGradient id="g" gradientUnits="userSpaceOnUse" cx="0" cy="0" r="1" )x"
         R"x(gradientTransform="matrix(100 0 20 40 50 50)">)x"},
    };
    for (const Row& row : rows) {
        const std::optional<std::string> svg = SvgPaint::Gradient(row.paint, "g");
        ASSERT_TRUE(svg.has_value()) << row.opening;
        EXPECT_EQ(svg->rfind(row.opening, 0), 0u) << *svg;
        EXPECT_NE(svg->find(R"x(<stop offset="1" stop-color="#1e2896" stop-opacity="0.5019607843137255"/>)x"),
                  std::string::npos)
            << *svg;
    }
    EXPECT_FALSE(SvgPaint::Gradient(Ramp(Paint::Kind::Conical, {{0, 0}, {1, 0}}), "g").has_value());
    EXPECT_FALSE(SvgPaint::Gradient(Ramp(Paint::Kind::Linear, {{0, 0}}), "g").has_value());
}

TEST(SvgPaint, ACurvedBlendIsSampledUntilStraightStopsStayWithinHalfALevel)
{
    // Straight: the two stops alone.
    EXPECT_EQ(Reds(SvgPaint::Stops(kRedToBlue)).size(), 2u);
    // Eased in: stops in between, and the straight blend between them stays on the curve.
    std::vector<RampStop> eased = kRedToBlue;
    eased[0].c1 = 0;
    eased[0].c2 = 0.1;
    const std::vector<std::pair<double, int>> stops = Reds(SvgPaint::Stops(eased));
    ASSERT_GT(stops.size(), 4u);
    for (int i = 0; i <= 1000; ++i) {
        const double t = i / 1000.0;
        const double r = 1 - t;
        const double curve = 200 + (30 - 200) * (3 * r * t * t * 0.1 + t * t * t);
        auto next = std::upper_bound(stops.begin(), stops.end(), std::pair{t, 1000});
        if (next == stops.end())
            next = stops.end() - 1;
        const auto& [t1, r1] = *next;
        const auto& [t0, r0] = *(next - 1);
        const double straight = t1 > t0 ? r0 + (r1 - r0) * (t - t0) / (t1 - t0) : r1;
        EXPECT_NEAR(straight, curve, 1.0) << t; // half a level of curve, half of rounding
    }
}

namespace {

// The paint over a w x h area as a real SVG renderer (rsvg-convert) shows it, and as ours
// does, 0xAARRGGBB. A transparency is shown as the black it lets through onto white: the
// paint as a mask there, our mask's coverage here.
struct Pictures {
    std::vector<std::uint32_t> svg, ours;
};

Pictures Render(const Paint& paint, int w, int h)
{
    const std::optional<SvgPaint::Fill> fill = SvgPaint::Area(paint, "p", 0, 0, w, h);
    EXPECT_TRUE(fill.has_value());
    const std::string dir = testing::TempDir();
    const std::string svgPath = dir + "/paint.svg", pngPath = dir + "/paint.png";
    const std::string size = "width=\"" + std::to_string(w) + "\" height=\"" + std::to_string(h) + "\"";
    std::ofstream svg(svgPath);
    svg << "<svg xmlns=\"http://www.w3.org/2000/svg\" " << size << "><defs>" << fill->defs;
    if (paint.transparency)
        svg << "<mask id=\"m\" maskUnits=\"userSpaceOnUse\" x=\"0\" y=\"0\" " << size << ">" << fill->elements
            << "</mask></defs><rect " << size << " fill=\"white\"/><rect " << size << " mask=\"url(#m)\"/></svg>";
    else
        svg << "</defs>" << fill->elements << "</svg>";
    svg.close();
    const std::string command = "rsvg-convert -o '" + pngPath + "' '" + svgPath + "'";
    EXPECT_EQ(std::system(command.c_str()), 0) << command << " (rsvg-convert comes from librsvg2-bin)";
    Pictures pictures;
    std::string error;
    const KestoKernel::RefPtr<KestoGDI::CLtBitmap> png = KestoGDI::PngFile::Read(pngPath, &error);
    EXPECT_TRUE(png) << error;
    if (png)
        pictures.svg.assign(png->GetBits(), png->GetBits() + static_cast<std::size_t>(w) * h);
    const auto area = static_cast<std::size_t>(w) * h;
    if (paint.transparency) {
        std::vector<std::uint8_t> mask(area);
        KestoRaster::Render(KestoRaster::PreparedPaint(paint, {}, KestoRaster::Output::Mask8),
                            {mask.data(), w, h, w, KestoRaster::Output::Mask8}, {0, 0, w, h});
        for (const std::uint8_t m : mask)
            pictures.ours.push_back(0xFF000000u | 0x010101u * static_cast<std::uint32_t>(255 - m));
        return pictures;
    }
    pictures.ours.resize(area);
    KestoRaster::Render(KestoRaster::PreparedPaint(paint, {}, KestoRaster::Output::Argb32),
                        {pictures.ours.data(), w, h, w * 4, KestoRaster::Output::Argb32}, {0, 0, w, h});
    return pictures;
}

} // namespace

TEST(SvgPaint, ARealRendererShowsTheNativeKindsAsOursDoes)
{
    struct Row {
        const char* name;
        Paint paint;
    };
    std::vector<RampStop> opaque{{0, {200, 30, 40, 255}}, {4000, {250, 200, 40, 255}}, {10000, {30, 40, 150, 255}}};
    opaque[1].c1 = 0.05; // a curved blend between the second and third stops
    opaque[1].c2 = 0.2;
    const auto ramp = [&](Paint::Kind kind, std::vector<KestoRaster::Point> points) {
        Paint paint = Ramp(kind, std::move(points));
        paint.stops = opaque;
        return paint;
    };
    const Row rows[] = {
        {"linear", ramp(Paint::Kind::Linear, {{20, 30}, {180, 110}})},
        {"radial", ramp(Paint::Kind::Radial, {{90, 60}, {150, 80}})},
        {"elliptical, skewed", ramp(Paint::Kind::Elliptical, {{100, 70}, {170, 60}, {80, 120}})},
        {"square, skewed", ramp(Paint::Kind::Square, {{100, 70}, {150, 60}, {90, 110}})},
        {"linear transparency", [] {
             Paint levels = Ramp(Paint::Kind::Linear, {{30, 20}, {170, 130}});
             levels.transparency = true;
             levels.stops = {{0, {20, 20, 20, 255}}, {10000, {230, 230, 230, 255}}};
             return levels;
         }()},
    };
    for (const Row& row : rows) {
        const Pictures pictures = Render(row.paint, 200, 150);
        ASSERT_EQ(pictures.svg.size(), pictures.ours.size()) << row.name;
        std::vector<int> differences;
        for (std::size_t i = 0; i < pictures.ours.size(); ++i)
            for (const int shift : {0, 8, 16})
                differences.push_back(
                    std::abs(static_cast<int>(pictures.svg[i] >> shift & 0xFF) - static_cast<int>(pictures.ours[i] >> shift & 0xFF)));
        std::sort(differences.begin(), differences.end());
        const double mean = std::accumulate(differences.begin(), differences.end(), 0.0) / static_cast<double>(differences.size());
        EXPECT_LE(mean, 2.0) << row.name;
        EXPECT_LE(differences[differences.size() * 99 / 100], 8) << row.name;
    }
}
