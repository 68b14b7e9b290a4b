#include "kestotool/raster/PreparedPaint.h"

#include "kestotool/raster/Kernels_p.h"
#include "kestotool/raster/Shading_p.h"

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

// Visits the clip's rows, for a kernel: the row's first clipped column and width, the
// paint-space point of column 0's centre relative to the geometry's origin (measured from column
// 0 whatever the clip, so that every clip paints the same), and where the first pixel goes.
template <class Row>
void ForEachRow(const PreparedPaint& prepared, const Target& target, const Clip& clip, Row row)
{
    const Clip c = Within(target, clip);
    if (c.x1 <= c.x0)
        return;
    const Geometry& g = prepared.GetGeometry();
    const int bytesPerPixel = target.format == Output::Mask8 ? 1 : 4;
    for (int y = c.y0; y < c.y1; ++y) {
        const Point p = prepared.DeviceToPaint().Apply({0.5, y + 0.5});
        row(c.x0, c.x1 - c.x0, p.x - g.origin.x, p.y - g.origin.y,
            static_cast<unsigned char*>(target.pixels) + y * target.stride + c.x0 * bytesPerPixel);
    }
}

// Runs a kernel over the clip's rows for a kind measured along two axes, given by the rows of
// their inverse basis (ux, uy) and (vx, vy): each row starts at (u0, v0) and steps by (du, dv).
// A degenerate geometry stands still at (at, at).
template <class Row>
void RunAlongAxes(const PreparedPaint& prepared, const Target& target, const Clip& clip, Row& row,
                  void (*kernel)(const Row&), double ux, double uy, double vx, double vy, double at)
{
    const bool degenerate = prepared.GetGeometry().degenerate;
    const Affine& toPaint = prepared.DeviceToPaint();
    ForEachRow(prepared, target, clip, [&](int x0, int count, double px, double py, void* out) {
        row.u0 = degenerate ? at : px * ux + py * uy;
        row.v0 = degenerate ? at : px * vx + py * vy;
        row.du = degenerate ? 0 : toPaint.a * ux + toPaint.b * uy;
        row.dv = degenerate ? 0 : toPaint.a * vx + toPaint.b * vy;
        row.x0 = x0;
        row.count = count;
        row.out = out;
        kernel(row);
    });
}

// The ramp kinds' rows through the active instruction set's kernel, measured as shape does.
bool RenderRampRows(const PreparedPaint& prepared, Kernels::RampShape shape, const Target& target, const Clip& clip)
{
    const Geometry& g = prepared.GetGeometry();
    Kernels::RampRow row{};
    row.shape = shape;
    row.table = prepared.Table().data();
    row.mask = target.format == Output::Mask8;
    // Measured in the kind's own axes: u along the first, v along the second.
    double ux = g.iux, uy = g.iuy, vx = g.ivx, vy = g.ivy;
    if (shape == Kernels::RampShape::Conical) {
        // The point turned so that C->R lies along +u, v measured anticlockwise on screen.
        const double cz = std::cos(g.zeroAngle), sz = std::sin(g.zeroAngle);
        ux = cz, uy = -sz, vx = -sz, vy = -cz;
    }
    // A degenerate ramp shows its end everywhere: linear at t = 1.
    if (g.degenerate)
        row.shape = Kernels::RampShape::Linear;
    RunAlongAxes(prepared, target, clip, row, Kernels::Active().ramp, ux, uy, vx, vy, 1.0);
    return true;
}

template <Kernels::RampShape Shape>
bool RenderShapedRows(const PreparedPaint& prepared, const Target& target, const Clip& clip)
{
    return RenderRampRows(prepared, Shape, target, clip);
}

// The mask cells (see PreparedPaint::MaskCells) of padded (w + 2) x (h + 2) mask texels.
std::vector<std::uint32_t> MaskCellsOf(const std::vector<std::uint32_t>& padded, int w, int h)
{
    const std::size_t stride = static_cast<std::size_t>(w) + 2;
    std::vector<std::uint32_t> cells;
    cells.reserve((stride - 1) * (static_cast<std::size_t>(h) + 1));
    for (std::size_t y = 0; y <= static_cast<std::size_t>(h); ++y) {
        for (std::size_t x = 0; x + 1 < stride; ++x) {
            const std::uint32_t* top = &padded[y * stride + x];
            const std::uint32_t* bottom = top + stride;
            cells.push_back((top[0] & 0xFF) | (top[1] & 0xFF) << 8 | (bottom[0] & 0xFF) << 16 |
                            (bottom[1] & 0xFF) << 24);
        }
    }
    return cells;
}

// The plasma cells (see PreparedPaint::PlasmaCells) of a padded (n + 2) x (n + 2) tile.
std::vector<std::uint64_t> PlasmaCellsOf(const std::vector<float>& padded, int n)
{
    const auto level = [](float v) {
        return static_cast<std::uint64_t>(std::lround(std::clamp(v, 0.0f, 1.0f) * 32767.0f));
    };
    const std::size_t stride = static_cast<std::size_t>(n) + 2;
    std::vector<std::uint64_t> cells;
    cells.reserve((stride - 1) * (stride - 1));
    for (std::size_t y = 0; y + 1 < stride; ++y) {
        for (std::size_t x = 0; x + 1 < stride; ++x) {
            const float* top = &padded[y * stride + x];
            const float* bottom = top + stride;
            cells.push_back(level(top[0]) | level(top[1]) << 16 | level(bottom[0]) << 32 | level(bottom[1]) << 48);
        }
    }
    return cells;
}

// The plasma kind's rows through the active instruction set's kernel.
bool RenderPlasmaRows(const PreparedPaint& prepared, const Target& target, const Clip& clip)
{
    const Paint& paint = prepared.GetPaint();
    const Geometry& g = prepared.GetGeometry();
    Kernels::PlasmaRow row{};
    row.cells = prepared.PlasmaCells().data();
    row.n = Shading::PlasmaResolution(paint.plasma);
    row.mirrored = paint.mirroredTiles;
    row.table = prepared.Table().data();
    row.mask = target.format == Output::Mask8;
    // A degenerate tile shows its first sample everywhere, as the reference does.
    RunAlongAxes(prepared, target, clip, row, Kernels::Active().plasma, g.iux, g.iuy, g.ivx, g.ivy, 0.0);
    return true;
}

// The four-colour kind's rows through the active instruction set's kernel.
bool RenderFourColourRows(const PreparedPaint& prepared, const Target& target, const Clip& clip)
{
    const Paint& paint = prepared.GetPaint();
    const Geometry& g = prepared.GetGeometry();
    if (paint.colours.size() < 4 || g.degenerate)
        return false;
    Kernels::QuadRow row{};
    row.mask = target.format == Output::Mask8;
    row.transparency = paint.transparency;
    row.e1x = g.e1.x, row.e1y = g.e1.y, row.e2x = g.e2.x, row.e2y = g.e2.y, row.e3x = g.e3.x, row.e3y = g.e3.y;
    for (int k = 0; k < 4; ++k) {
        const Rgba& colour = paint.colours[static_cast<std::size_t>(k)];
        row.c[k][0] = colour.r, row.c[k][1] = colour.g, row.c[k][2] = colour.b, row.c[k][3] = colour.a;
    }
    row.dqx = prepared.DeviceToPaint().a;
    row.dqy = prepared.DeviceToPaint().b;
    ForEachRow(prepared, target, clip, [&](int x0, int count, double px, double py, void* out) {
        row.qx0 = px;
        row.qy0 = py;
        row.x0 = x0;
        row.count = count;
        row.out = out;
        Kernels::Active().fourColour(row);
    });
    return true;
}

// The bitmap kind's rows through the active instruction set's kernel.
bool RenderBitmapRows(const PreparedPaint& prepared, const Target& target, const Clip& clip)
{
    const Paint& paint = prepared.GetPaint();
    const Geometry& g = prepared.GetGeometry();
    if (prepared.Texels().empty())
        return false;
    Kernels::BitmapRow row{};
    row.texels = prepared.Texels().data();
    row.maskCells = prepared.MaskCells().data();
    row.w = paint.image->width;
    row.h = paint.image->height;
    row.stride = row.w + 2;
    row.mirrored = paint.mirroredTiles;
    row.nearest = paint.nearest;
    row.mask = target.format == Output::Mask8;
    RunAlongAxes(prepared, target, clip, row, Kernels::Active().bitmap, g.iux, g.iuy, g.ivx, g.ivy, 0.0);
    return true;
}

// The three-colour kind's rows through the active instruction set's kernel.
bool RenderThreeColourRows(const PreparedPaint& prepared, const Target& target, const Clip& clip)
{
    const Paint& paint = prepared.GetPaint();
    const Geometry& g = prepared.GetGeometry();
    if (paint.colours.size() < 3)
        return false;
    Kernels::CornerRow row{};
    row.mask = target.format == Output::Mask8;
    row.transparency = paint.transparency;
    const auto channels = [](const Rgba& x) {
        return std::array<float, 4>{float(x.r), float(x.g), float(x.b), float(x.a)};
    };
    const auto c0 = channels(paint.colours[0]), c1 = channels(paint.colours[1]), c2 = channels(paint.colours[2]);
    for (int k = 0; k < 4; ++k) {
        row.c0[k] = c0[k];
        row.d1[k] = c1[k] - c0[k];
        row.d2[k] = c2[k] - c0[k];
    }
    // A degenerate parallelogram shows its far corner (u = v = 1), as the reference does.
    RunAlongAxes(prepared, target, clip, row, Kernels::Active().threeColour, g.iux, g.iuy, g.ivx, g.ivy, 1.0);
    return true;
}

// One pixel by the definition, for each family of kinds.
using PlasmaTileRef = const std::vector<float>&;

std::uint32_t DirectSolid(const Paint& paint, const Geometry&, PlasmaTileRef, Output out, Point)
{
    return Shade(paint, out, paint.colours.empty() ? Rgba{} : paint.colours.front());
}

std::uint32_t DirectRamp(const Paint& paint, const Geometry& g, PlasmaTileRef, Output out, Point p)
{
    return Shade(paint, out, RampColour(paint, RampParameter(g, p) * 10000));
}

std::uint32_t DirectPlasma(const Paint& paint, const Geometry& g, PlasmaTileRef tile, Output out, Point p)
{
    const double t =
        PlasmaValue(tile, paint.plasma.resolution, TileCoordinates(g, p, paint.mirroredTiles), paint.mirroredTiles);
    return Shade(paint, out, RampColour(paint, t * 10000));
}

std::uint32_t DirectCorners(const Paint& paint, const Geometry& g, PlasmaTileRef, Output out, Point p)
{
    return Shade(paint, out, CornerColour(paint, CornerCoordinates(g, p)));
}

std::uint32_t DirectBitmap(const Paint& paint, const Geometry& g, PlasmaTileRef, Output out, Point p)
{
    return BitmapSample(paint, TileCoordinates(g, p, paint.mirroredTiles), out);
}

// How the renderer treats a paint kind. This is the one place that decides by kind, and its
// switch has no default: a new kind does not compile until it has a row here.
struct KindRow {
    // What the preparation builds: the ramp's table, the plasma's tile, the bitmap's texels.
    bool table = false;
    bool plasmaTile = false;
    bool texels = false;
    // Paints the clip's rows through the active kernels; false, or no function at all, sends
    // the paint pixel by pixel through direct. Rows that read the table or the texels need the
    // output they were prepared for.
    bool (*rows)(const PreparedPaint&, const Target&, const Clip&) = nullptr;
    bool rowsNeedPreparedOutput = false;
    std::uint32_t (*direct)(const Paint&, const Geometry&, PlasmaTileRef, Output, Point) = nullptr;
};

constexpr KindRow RowOf(Paint::Kind kind)
{
    using K = Paint::Kind;
    using S = Kernels::RampShape;
    switch (kind) {
    case K::Solid: return {.direct = DirectSolid};
    case K::Linear:
        return {
            .table = true, .rows = RenderShapedRows<S::Linear>, .rowsNeedPreparedOutput = true, .direct = DirectRamp};
    case K::Radial:
    case K::Elliptical:
        return {
            .table = true, .rows = RenderShapedRows<S::Round>, .rowsNeedPreparedOutput = true, .direct = DirectRamp};
    case K::Conical:
        return {
            .table = true, .rows = RenderShapedRows<S::Conical>, .rowsNeedPreparedOutput = true, .direct = DirectRamp};
    case K::Square:
        return {
            .table = true, .rows = RenderShapedRows<S::Square>, .rowsNeedPreparedOutput = true, .direct = DirectRamp};
    case K::ThreeColour: return {.rows = RenderThreeColourRows, .direct = DirectCorners};
    case K::FourColour: return {.rows = RenderFourColourRows, .direct = DirectCorners};
    case K::Plasma:
        return {.table = true,
                .plasmaTile = true,
                .rows = RenderPlasmaRows,
                .rowsNeedPreparedOutput = true,
                .direct = DirectPlasma};
    case K::Bitmap:
        return {.texels = true, .rows = RenderBitmapRows, .rowsNeedPreparedOutput = true, .direct = DirectBitmap};
    }
    return {.direct = DirectSolid}; // a value outside the enumeration
}

// Everything the colour preparation reads of a paint, compared by content without copies: two
// preparations with equal keys share their table, tile and texels.
template <class T>
struct Contents {
    const T* value;
    friend bool operator==(const Contents& a, const Contents& b) { return *a.value == *b.value; }
};

struct ImageContents {
    const Paint::Image* image;
    friend bool operator==(const ImageContents& a, const ImageContents& b)
    {
        return a.image == b.image || (a.image && b.image && *a.image == *b.image);
    }
};

struct ColourKey {
    Output output;
    Paint::Kind kind;
    Contents<std::vector<RampStop>> stops;
    Contents<std::vector<Rgba>> colours;
    bool transparency;
    Paint::Plasma plasma;
    ImageContents image;
    bool recolour;
    bool mirroredTiles;
    friend bool operator==(const ColourKey&, const ColourKey&) = default;
};

ColourKey KeyOf(const Paint& paint, Output output)
{
    return {output,       paint.kind,          {&paint.stops}, {&paint.colours},   paint.transparency,
            paint.plasma, {paint.image.get()}, paint.recolour, paint.mirroredTiles};
}

} // namespace

PreparedPaint::PreparedPaint(const Paint& paint, const Affine& paintToDevice, Output output,
                             const PreparedPaint* previous)
    : m_paint(std::make_shared<Paint>(paint)), m_output(output), m_deviceToPaint(paintToDevice.Inverse()),
      m_geometry(std::make_shared<const Geometry>(Solve(paint)))
{
    // Colours that a drag does not change are shared with the previous preparation: the table,
    // the plasma tile and the bitmap's texels are built only when the colours change. Images are
    // compared by content, as a host translating its fill anew each time makes a new one.
    if (previous && KeyOf(*previous->m_paint, previous->m_output) == KeyOf(paint, output)) {
        m_table = previous->m_table;
        m_plasmaTile = previous->m_plasmaTile;
        m_plasmaCells = previous->m_plasmaCells;
        m_texels = previous->m_texels;
        m_maskCells = previous->m_maskCells;
        return;
    }
    const KindRow kind = RowOf(paint.kind);
    m_texels = std::make_shared<const std::vector<std::uint32_t>>(kind.texels ? PaddedTexels(paint, output)
                                                                              : std::vector<std::uint32_t>());
    m_maskCells = std::make_shared<const std::vector<std::uint32_t>>(
        output == Output::Mask8 && !m_texels->empty() ? MaskCellsOf(*m_texels, paint.image->width, paint.image->height)
                                                      : std::vector<std::uint32_t>());
    if (kind.plasmaTile) {
        const bool same = previous && previous->m_plasmaTile && previous->m_paint->plasma == paint.plasma;
        m_plasmaTile = same ? previous->m_plasmaTile
                            : std::make_shared<const std::vector<float>>(Shading::PlasmaTile(paint.plasma));
        const int n = Shading::PlasmaResolution(paint.plasma);
        m_plasmaCells = std::make_shared<const std::vector<std::uint64_t>>(
            PlasmaCellsOf(Shading::PadTile(*m_plasmaTile, n, n, paint.mirroredTiles), n));
    }
    auto table = std::make_shared<std::vector<std::uint32_t>>();
    if (kind.table) {
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

const std::vector<std::uint64_t>& PreparedPaint::PlasmaCells() const
{
    static const std::vector<std::uint64_t> none;
    return m_plasmaCells ? *m_plasmaCells : none;
}

const Geometry& PreparedPaint::GetGeometry() const
{
    return *m_geometry;
}

bool PreparedPaint::IsRamp() const
{
    return RowOf(m_paint->kind).table;
}

void Render(const PreparedPaint& prepared, const Target& target, const Clip& clip)
{
    const Paint& paint = prepared.GetPaint();
    const KindRow kind = RowOf(paint.kind);
    const bool rowsApply = kind.rows && (!kind.rowsNeedPreparedOutput || target.format == prepared.GetOutput());
    if (rowsApply && kind.rows(prepared, target, clip))
        return;
    const Geometry& g = prepared.GetGeometry();
    const std::vector<float>& tile = prepared.PlasmaTile();
    ForEachPixel(target, clip, prepared.DeviceToPaint(),
                 [&](Point p) { return kind.direct(paint, g, tile, target.format, p); });
}

void RenderReference(const Paint& paint, const Affine& paintToDevice, const Target& target, const Clip& clip)
{
    const Geometry g = Solve(paint);
    const std::vector<float> tile =
        RowOf(paint.kind).plasmaTile ? Shading::PlasmaTile(paint.plasma) : std::vector<float>();
    const KindRow kind = RowOf(paint.kind);
    ForEachPixel(target, clip, paintToDevice.Inverse(),
                 [&](Point p) { return kind.direct(paint, g, tile, target.format, p); });
}

} // namespace KestoRaster
