#include "raster/PreparedPaint.h"

#include "raster/Kernels_p.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace KestoRaster {

using namespace Shading;

Affine Affine::Inverse() const
{
    const double det = Determinant();
    if (!std::isfinite(det) || det == 0)
        return {0, 0, 0, 0, 0, 0};
    Affine r;
    r.a = d / det;
    r.b = -b / det;
    r.c = -c / det;
    r.d = a / det;
    r.e = -(r.a * e + r.c * f);
    r.f = -(r.b * e + r.d * f);
    return r;
}

namespace {

std::uint32_t Shade(const Paint& paint, Output output, Rgba c)
{
    return output == Output::Argb32 ? ToArgb(paint, c) : ToMask(paint, c);
}

// The kinds whose colour is the ramp at a parameter: they render through the table.
bool IsRampKind(Paint::Kind kind)
{
    switch (kind) {
    case Paint::Kind::Linear:
    case Paint::Kind::Radial:
    case Paint::Kind::Elliptical:
    case Paint::Kind::Conical:
    case Paint::Kind::Square:
    case Paint::Kind::Plasma: return true;
    default: return false;
    }
}

// The ramp parameter of a paint-space point for a ramp kind.
double Parameter(const Paint& paint, const Geometry& g, const std::vector<float>& plasmaTile, Point p)
{
    if (paint.kind == Paint::Kind::Plasma)
        return PlasmaValue(plasmaTile, paint.plasma.resolution, TileCoordinates(g, p, paint.mirroredTiles),
                           paint.mirroredTiles);
    return RampParameter(g, p);
}

// Any kind's output at a paint-space point, by the definition.
std::uint32_t Direct(const Paint& paint, const Geometry& g, const std::vector<float>& plasmaTile, Output out, Point p)
{
    switch (paint.kind) {
    case Paint::Kind::Solid: return Shade(paint, out, paint.colours.empty() ? Rgba{} : paint.colours.front());
    case Paint::Kind::ThreeColour:
    case Paint::Kind::FourColour: return Shade(paint, out, CornerColour(paint, CornerCoordinates(g, p)));
    case Paint::Kind::Bitmap: return BitmapSample(paint, TileCoordinates(g, p, paint.mirroredTiles), out);
    default: return Shade(paint, out, RampColour(paint, Parameter(paint, g, plasmaTile, p) * 10000));
    }
}

// The clip cut to the target.
Clip Within(const Target& target, const Clip& clip)
{
    return {std::max(clip.x0, 0), std::max(clip.y0, 0), std::min(clip.x1, target.width),
            std::min(clip.y1, target.height)};
}

// Visits every pixel of the clip with its paint-space centre.
template <class Write>
void ForEachPixel(const Target& target, const Clip& clip, const Affine& toPaint, Write write)
{
    const Clip c = Within(target, clip);
    for (int y = c.y0; y < c.y1; ++y) {
        auto* row = static_cast<unsigned char*>(target.pixels) + y * target.stride;
        for (int x = c.x0; x < c.x1; ++x) {
            const Point p = toPaint.Apply({x + 0.5, y + 0.5});
            const std::uint32_t v = write(p);
            if (target.format == Output::Argb32)
                reinterpret_cast<std::uint32_t*>(row)[x] = v;
            else
                row[x] = static_cast<unsigned char>(v);
        }
    }
}

// The ramp kinds' rows through the active instruction set's kernel.
void RenderRampRows(const PreparedPaint& prepared, const Target& target, const Clip& clip)
{
    const Geometry& g = prepared.GetGeometry();
    const Affine& toPaint = prepared.DeviceToPaint();
    const Clip c = Within(target, clip);
    if (c.x1 <= c.x0)
        return;
    Kernels::RampRow row{};
    row.table = prepared.Table().data();
    row.mask = target.format == Output::Mask8;
    row.count = c.x1 - c.x0;
    // Measured in the kind's own axes: u along the first, v along the second.
    double ux = g.iux, uy = g.iuy, vx = g.ivx, vy = g.ivy;
    switch (g.kind) {
    case Paint::Kind::Linear: row.shape = Kernels::RampShape::Linear; break;
    case Paint::Kind::Square: row.shape = Kernels::RampShape::Square; break;
    case Paint::Kind::Conical: {
        // The point turned so that C->R lies along +u, v measured anticlockwise on screen.
        row.shape = Kernels::RampShape::Conical;
        const double cz = std::cos(g.zeroAngle), sz = std::sin(g.zeroAngle);
        ux = cz, uy = -sz, vx = -sz, vy = -cz;
        break;
    }
    default: row.shape = Kernels::RampShape::Round; break;
    }
    if (g.degenerate) {
        // Every pixel shows the ramp's end.
        row.shape = Kernels::RampShape::Linear;
        ux = uy = vx = vy = 0;
        row.u0 = 1;
    }
    const Kernels::RampRowFunction kernel = Kernels::Active().ramp;
    const int bytesPerPixel = row.mask ? 1 : 4;
    row.x0 = c.x0;
    for (int y = c.y0; y < c.y1; ++y) {
        // Measured from device column 0, whatever the clip, so that every clip paints the same.
        const Point p = toPaint.Apply({0.5, y + 0.5});
        const double px = p.x - g.origin.x, py = p.y - g.origin.y;
        if (!g.degenerate) {
            row.u0 = px * ux + py * uy;
            row.v0 = px * vx + py * vy;
            row.du = toPaint.a * ux + toPaint.b * uy;
            row.dv = toPaint.a * vx + toPaint.b * vy;
        }
        row.out = static_cast<unsigned char*>(target.pixels) + y * target.stride + c.x0 * bytesPerPixel;
        kernel(row);
    }
}

// The plasma kind's rows through the active instruction set's kernel.
void RenderPlasmaRows(const PreparedPaint& prepared, const Target& target, const Clip& clip)
{
    const Paint& paint = prepared.GetPaint();
    const Geometry& g = prepared.GetGeometry();
    const Affine& toPaint = prepared.DeviceToPaint();
    const Clip c = Within(target, clip);
    if (c.x1 <= c.x0)
        return;
    Kernels::PlasmaRow row{};
    row.x0 = c.x0;
    row.count = c.x1 - c.x0;
    row.tile = prepared.PlasmaTile().data();
    row.n = std::clamp(paint.plasma.resolution, 2, 1024);
    row.mirrored = paint.mirroredTiles;
    row.table = prepared.Table().data();
    row.mask = target.format == Output::Mask8;
    const int bytesPerPixel = row.mask ? 1 : 4;
    for (int y = c.y0; y < c.y1; ++y) {
        const Point p = toPaint.Apply({0.5, y + 0.5});
        const double px = p.x - g.origin.x, py = p.y - g.origin.y;
        // A degenerate tile shows its first sample everywhere, as the reference does.
        row.u0 = g.degenerate ? 0 : px * g.iux + py * g.iuy;
        row.v0 = g.degenerate ? 0 : px * g.ivx + py * g.ivy;
        row.du = g.degenerate ? 0 : toPaint.a * g.iux + toPaint.b * g.iuy;
        row.dv = g.degenerate ? 0 : toPaint.a * g.ivx + toPaint.b * g.ivy;
        row.out = static_cast<unsigned char*>(target.pixels) + y * target.stride + c.x0 * bytesPerPixel;
        Kernels::Active().plasma(row);
    }
}

// The four-colour kind's rows through the active instruction set's kernel.
void RenderFourColourRows(const PreparedPaint& prepared, const Target& target, const Clip& clip)
{
    const Paint& paint = prepared.GetPaint();
    const Geometry& g = prepared.GetGeometry();
    const Affine& toPaint = prepared.DeviceToPaint();
    const Clip c = Within(target, clip);
    if (c.x1 <= c.x0)
        return;
    Kernels::QuadRow row{};
    row.x0 = c.x0;
    row.count = c.x1 - c.x0;
    row.mask = target.format == Output::Mask8;
    row.transparency = paint.transparency;
    row.e1x = g.e1.x, row.e1y = g.e1.y, row.e2x = g.e2.x, row.e2y = g.e2.y, row.e3x = g.e3.x, row.e3y = g.e3.y;
    for (int k = 0; k < 4; ++k) {
        const Rgba& colour = paint.colours[static_cast<std::size_t>(k)];
        row.c[k][0] = colour.r, row.c[k][1] = colour.g, row.c[k][2] = colour.b, row.c[k][3] = colour.a;
    }
    row.dqx = toPaint.a;
    row.dqy = toPaint.b;
    const int bytesPerPixel = row.mask ? 1 : 4;
    for (int y = c.y0; y < c.y1; ++y) {
        const Point p = toPaint.Apply({0.5, y + 0.5});
        row.qx0 = p.x - g.origin.x;
        row.qy0 = p.y - g.origin.y;
        row.out = static_cast<unsigned char*>(target.pixels) + y * target.stride + c.x0 * bytesPerPixel;
        Kernels::Active().fourColour(row);
    }
}

// The three-colour kind's rows through the active instruction set's kernel.
void RenderThreeColourRows(const PreparedPaint& prepared, const Target& target, const Clip& clip)
{
    const Paint& paint = prepared.GetPaint();
    const Geometry& g = prepared.GetGeometry();
    const Affine& toPaint = prepared.DeviceToPaint();
    const Clip c = Within(target, clip);
    if (c.x1 <= c.x0)
        return;
    Kernels::CornerRow row{};
    row.count = c.x1 - c.x0;
    row.mask = target.format == Output::Mask8;
    row.transparency = paint.transparency;
    const auto channels = [](const Rgba& x) { return std::array<float, 4>{float(x.r), float(x.g), float(x.b), float(x.a)}; };
    const auto c0 = channels(paint.colours[0]), c1 = channels(paint.colours[1]), c2 = channels(paint.colours[2]);
    for (int k = 0; k < 4; ++k) {
        row.c0[k] = c0[k];
        row.d1[k] = c1[k] - c0[k];
        row.d2[k] = c2[k] - c0[k];
    }
    const int bytesPerPixel = row.mask ? 1 : 4;
    row.x0 = c.x0;
    for (int y = c.y0; y < c.y1; ++y) {
        const Point p = toPaint.Apply({0.5, y + 0.5});
        const double px = p.x - g.origin.x, py = p.y - g.origin.y;
        // A degenerate parallelogram shows its far corner (u = v = 1), as the reference does.
        row.u0 = g.degenerate ? 1 : px * g.iux + py * g.iuy;
        row.v0 = g.degenerate ? 1 : px * g.ivx + py * g.ivy;
        row.du = g.degenerate ? 0 : toPaint.a * g.iux + toPaint.b * g.iuy;
        row.dv = g.degenerate ? 0 : toPaint.a * g.ivx + toPaint.b * g.ivy;
        row.out = static_cast<unsigned char*>(target.pixels) + y * target.stride + c.x0 * bytesPerPixel;
        Kernels::Active().threeColour(row);
    }
}

} // namespace

PreparedPaint::PreparedPaint(const Paint& paint, const Affine& paintToDevice, Output output,
                             const PreparedPaint* previous)
    : m_paint(std::make_shared<Paint>(paint)), m_output(output), m_deviceToPaint(paintToDevice.Inverse()),
      m_geometry(Solve(paint))
{
    if (previous && previous->m_output == output && previous->m_paint->stops == paint.stops &&
        previous->m_paint->transparency == paint.transparency && previous->IsRamp() == IsRamp() &&
        previous->m_paint->kind == paint.kind && previous->m_paint->plasma == paint.plasma) {
        m_table = previous->m_table;
        m_plasmaTile = previous->m_plasmaTile;
        return;
    }
    if (paint.kind == Paint::Kind::Plasma) {
        const bool same = previous && previous->m_paint->kind == Paint::Kind::Plasma &&
                          previous->m_paint->plasma == paint.plasma;
        m_plasmaTile = same ? previous->m_plasmaTile
                            : std::make_shared<const std::vector<float>>(Shading::PlasmaTile(paint.plasma));
    }
    auto table = std::make_shared<std::vector<std::uint32_t>>();
    if (IsRamp()) {
        table->resize(TableSize);
        for (int i = 0; i < TableSize; ++i)
            (*table)[i] = Shade(paint, output, RampColour(paint, i * 10000.0 / (TableSize - 1)));
    }
    m_table = std::move(table);
}

const std::vector<float>& PreparedPaint::PlasmaTile() const
{
    static const std::vector<float> none;
    return m_plasmaTile ? *m_plasmaTile : none;
}

bool PreparedPaint::IsRamp() const
{
    return IsRampKind(m_paint->kind);
}

void Render(const PreparedPaint& prepared, const Target& target, const Clip& clip)
{
    const Paint& paint = prepared.GetPaint();
    const Geometry& g = prepared.GetGeometry();
    const Output out = target.format;
    const std::vector<float>& tile = prepared.PlasmaTile();
    if (prepared.IsRamp() && out == prepared.GetOutput()) {
        if (paint.kind == Paint::Kind::Plasma)
            RenderPlasmaRows(prepared, target, clip);
        else
            RenderRampRows(prepared, target, clip);
        return;
    }
    if (paint.kind == Paint::Kind::ThreeColour && paint.colours.size() >= 3) {
        RenderThreeColourRows(prepared, target, clip);
        return;
    }
    if (paint.kind == Paint::Kind::FourColour && paint.colours.size() >= 4 && !g.degenerate) {
        RenderFourColourRows(prepared, target, clip);
        return;
    }
    ForEachPixel(target, clip, prepared.DeviceToPaint(), [&](Point p) { return Direct(paint, g, tile, out, p); });
}

void RenderReference(const Paint& paint, const Affine& paintToDevice, const Target& target, const Clip& clip)
{
    const Geometry g = Solve(paint);
    const std::vector<float> tile = paint.kind == Paint::Kind::Plasma ? Shading::PlasmaTile(paint.plasma) : std::vector<float>();
    ForEachPixel(target, clip, paintToDevice.Inverse(),
                 [&](Point p) { return Direct(paint, g, tile, target.format, p); });
}

} // namespace KestoRaster
