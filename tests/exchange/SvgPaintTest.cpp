#include "kestotool/exchange/SvgPaint.h"

#include <gtest/gtest.h>

#include <cmath>
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
