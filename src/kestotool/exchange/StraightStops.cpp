#include "kestotool/exchange/StraightStops_p.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace KestoTool {

using KestoRaster::RampStop;
using KestoRaster::Rgba;

namespace {

// The blend of a stop towards the next at t in 0..1 (the renderer's curve).
double Blend(const RampStop& s, double t)
{
    const double r = 1 - t;
    return 3 * r * r * t * s.c1 + 3 * r * t * t * s.c2 + t * t * t;
}

Rgba Mix(const Rgba& a, const Rgba& b, double blend)
{
    const auto mix = [blend](std::uint8_t x, std::uint8_t y) {
        return static_cast<std::uint8_t>(std::lround(x + (y - x) * blend));
    };
    return {mix(a.r, b.r), mix(a.g, b.g), mix(a.b, b.b), mix(a.a, b.a)};
}

} // namespace

std::vector<RampStop> StraightStops(const std::vector<RampStop>& stops)
{
    std::vector<RampStop> out;
    for (std::size_t i = 0; i < stops.size(); ++i) {
        const RampStop& s = stops[i];
        out.push_back({s.position, s.colour});
        if (i + 1 == stops.size() || (s.c1 == 1.0 / 3 && s.c2 == 2.0 / 3) || stops[i + 1].position <= s.position)
            continue;
        const RampStop& next = stops[i + 1];
        const Rgba& a = s.colour;
        const Rgba& b = next.colour;
        const double span = std::max({std::abs(a.r - b.r), std::abs(a.g - b.g), std::abs(a.b - b.b),
                                      std::abs(a.a - b.a)});
        const double length = next.position - s.position;
        // Halves a piece of the curve until the straight line between its ends strays less
        // than half a level from it (at most 2^8 pieces a segment).
        const std::function<void(double, double, int)> split = [&](double t0, double t1, int depth) {
            const double mid = (t0 + t1) / 2;
            const double stray = std::abs(Blend(s, mid) - (Blend(s, t0) + Blend(s, t1)) / 2) * span;
            if (stray <= 0.5 || depth == 8)
                return;
            split(t0, mid, depth + 1);
            const double at = std::round(s.position + length * mid);
            if (at > out.back().position && at < next.position)
                out.push_back({at, Mix(a, b, Blend(s, (at - s.position) / length))});
            split(mid, t1, depth + 1);
        };
        split(0, 1, 0);
    }
    return out;
}

} // namespace KestoTool
