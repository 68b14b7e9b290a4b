#include "kestotool/exchange/SvgPaint.h"

#include "kestotool/exchange/StraightStops_p.h"
#include "kestotool/exchange/SvgText_p.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace KestoTool {

using KestoRaster::Paint;
using KestoRaster::Point;
using KestoRaster::RampStop;
using KestoRaster::Rgba;

namespace {

// A solid paint's colour as fill attributes: the colour and, when not opaque, its opacity; a
// transparency's level as the grey of a mask's luminance (white where it lets everything
// through).
std::string FillAttributes(const Rgba& c, bool level)
{
    const int grey = 255 - c.r;
    char text[64];
    std::snprintf(text, sizeof text, " fill=\"#%02x%02x%02x\"", level ? grey : c.r, level ? grey : c.g, level ? grey : c.b);
    if (level || c.a == 255)
        return text;
    return text + (" fill-opacity=\"" + SvgNumber(c.a / 255.0) + "\"");
}

// A stop element. A transparency's stops are levels (red, 0 opaque .. 255 clear): as a mask's
// luminance, white lets all through.
std::string Stop(const RampStop& s, bool levels)
{
    const Rgba& c = s.colour;
    const int grey = 255 - c.r;
    char text[128];
    std::snprintf(text, sizeof text, "<stop offset=\"%s\" stop-color=\"#%02x%02x%02x\" stop-opacity=\"%s\"/>",
                  SvgNumber(s.position / 10000).c_str(), levels ? grey : c.r, levels ? grey : c.g, levels ? grey : c.b,
                  SvgNumber(levels ? 1.0 : c.a / 255.0).c_str());
    return text;
}

} // namespace

std::string SvgPaint::Stops(const std::vector<RampStop>& stops, bool levels)
{
    std::string out;
    for (const RampStop& s : StraightStops(stops))
        out += Stop(s, levels);
    return out;
}

std::optional<std::string> SvgPaint::Gradient(const Paint& paint, const std::string& id)
{
    const std::vector<Point>& p = paint.points;
    std::string open;
    switch (paint.kind) {
    case Paint::Kind::Linear:
        if (p.size() < 2)
            return std::nullopt;
        open = "<linearGradient id=\"" + id + "\" gradientUnits=\"userSpaceOnUse\" x1=\"" + SvgNumber(p[0].x) +
               "\" y1=\"" + SvgNumber(p[0].y) + "\" x2=\"" + SvgNumber(p[1].x) + "\" y2=\"" + SvgNumber(p[1].y) + "\">";
        return open + Stops(paint.stops, paint.transparency) + "</linearGradient>";
    case Paint::Kind::Radial:
        if (p.size() < 2)
            return std::nullopt;
        open = "<radialGradient id=\"" + id + "\" gradientUnits=\"userSpaceOnUse\" cx=\"" + SvgNumber(p[0].x) +
               "\" cy=\"" + SvgNumber(p[0].y) + "\" r=\"" + SvgNumber(std::hypot(p[1].x - p[0].x, p[1].y - p[0].y)) + "\">";
        return open + Stops(paint.stops, paint.transparency) + "</radialGradient>";
    case Paint::Kind::Elliptical:
        // The unit circle about the origin, taken to the axes C->E and C->F.
        if (p.size() < 3)
            return std::nullopt;
        open = "<radialGradient id=\"" + id + "\" gradientUnits=\"userSpaceOnUse\" cx=\"0\" cy=\"0\" r=\"1\" " +
               "gradientTransform=\"matrix(" + SvgNumber(p[1].x - p[0].x) + " " + SvgNumber(p[1].y - p[0].y) + " " +
               SvgNumber(p[2].x - p[0].x) + " " + SvgNumber(p[2].y - p[0].y) + " " + SvgNumber(p[0].x) + " " +
               SvgNumber(p[0].y) + ")\">";
        return open + Stops(paint.stops, paint.transparency) + "</radialGradient>";
    case Paint::Kind::Solid:
    case Paint::Kind::Conical:
    case Paint::Kind::Square:
    case Paint::Kind::ThreeColour:
    case Paint::Kind::FourColour:
    case Paint::Kind::Plasma:
    case Paint::Kind::Bitmap: return std::nullopt;
    }
    return std::nullopt;
}

namespace {

// The four wedges of a square paint. In the space of its axes (p = C + u e + v f) the paint is
// max(|u|, |v|): on the wedge around +u it is u, a linear gradient from the centre to E, and
// so on round. Each wedge is drawn in that space (its transform is the axes), so the gradient
// along it is exact; the u wedges reach a hair over the diagonals, where both give the same
// value, so that no seam shows between them.
std::optional<SvgPaint::Fill> Diamond(const Paint& paint, const std::string& id, double x0, double y0, double x1,
                                      double y1)
{
    const std::vector<Point>& p = paint.points;
    if (p.size() < 3)
        return std::nullopt;
    const Point e{p[1].x - p[0].x, p[1].y - p[0].y};
    const Point f{p[2].x - p[0].x, p[2].y - p[0].y};
    const double det = e.x * f.y - e.y * f.x;
    if (!(std::abs(det) > 0) || !std::isfinite(det))
        return std::nullopt;
    // How far the area reaches in the axes' units.
    double reach = 1;
    for (const Point corner : {Point{x0, y0}, Point{x1, y0}, Point{x0, y1}, Point{x1, y1}}) {
        const double dx = corner.x - p[0].x, dy = corner.y - p[0].y;
        reach = std::max({reach, std::abs((dx * f.y - dy * f.x) / det), std::abs((e.x * dy - e.y * dx) / det)});
    }
    const double r = reach + 1;
    const double over = r * 1.002;
    const std::string axes = "matrix(" + SvgNumber(e.x) + " " + SvgNumber(e.y) + " " + SvgNumber(f.x) + " " + SvgNumber(f.y) +
                             " " + SvgNumber(p[0].x) + " " + SvgNumber(p[0].y) + ")";
    struct Wedge {
        const char* x2;
        const char* y2;
        std::string points;
    };
    const std::string R = SvgNumber(r), O = SvgNumber(over), nR = SvgNumber(-r), nO = SvgNumber(-over);
    const Wedge wedges[] = {
        {"0", "1", "0,0 " + R + "," + R + " " + nR + "," + R},        // +v
        {"0", "-1", "0,0 " + R + "," + nR + " " + nR + "," + nR},     // -v
        {"1", "0", "0,0 " + R + "," + O + " " + R + "," + nO},        // +u, over the diagonals
        {"-1", "0", "0,0 " + nR + "," + O + " " + nR + "," + nO},     // -u
    };
    SvgPaint::Fill fill;
    const std::string stops = SvgPaint::Stops(paint.stops, paint.transparency);
    for (int i = 0; i < 4; ++i) {
        const std::string wedgeId = id + "-" + std::to_string(i);
        fill.defs += "<linearGradient id=\"" + wedgeId + "\" gradientUnits=\"userSpaceOnUse\" x1=\"0\" y1=\"0\" x2=\"" +
                     wedges[i].x2 + "\" y2=\"" + wedges[i].y2 + "\">" + stops + "</linearGradient>";
        fill.elements += "<polygon points=\"" + wedges[i].points + "\" transform=\"" + axes + "\" fill=\"url(#" +
                         wedgeId + ")\"/>";
    }
    return fill;
}

// A rectangle over the area painted as attributes say.
std::string Covering(double x0, double y0, double x1, double y1, const std::string& attributes)
{
    return "<rect x=\"" + SvgNumber(x0) + "\" y=\"" + SvgNumber(y0) + "\" width=\"" + SvgNumber(x1 - x0) +
           "\" height=\"" + SvgNumber(y1 - y0) + "\"" + attributes + "/>";
}

} // namespace

std::optional<SvgPaint::Fill> SvgPaint::Area(const Paint& paint, const std::string& id, double x0, double y0,
                                             double x1, double y1)
{
    if (paint.kind == Paint::Kind::Square)
        return Diamond(paint, id, x0, y0, x1, y1);
    if (paint.kind == Paint::Kind::Solid && !paint.colours.empty())
        return Fill{"", Covering(x0, y0, x1, y1, FillAttributes(paint.colours[0], paint.transparency))};
    std::optional<std::string> gradient = Gradient(paint, id);
    if (!gradient)
        return std::nullopt;
    return Fill{std::move(*gradient), Covering(x0, y0, x1, y1, " fill=\"url(#" + id + ")\"")};
}

} // namespace KestoTool
