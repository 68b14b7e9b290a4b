#include "kestotool/exchange/SvgWriter.h"

#include "kestotool/exchange/SvgText_p.h"
#include "kestotool/exchange/SvgPaint.h"
#include "kestotool/gdi/CFillVector.h"
#include "kestotool/gdi/FillPaint.h"
#include "kestotool/gdi/PngFile.h"
#include "kestotool/raster/Bands.h"
#include "kestotool/raster/PreparedPaint.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <vector>

namespace KestoTool {

using KestoRaster::Paint;
using KestoRaster::Path;
using KestoRaster::Point;

namespace {

// The outline as path data; its bounds (of every point, controls included) in box.
std::string PathData(const Path& path, double box[4])
{
    box[0] = box[1] = std::numeric_limits<double>::infinity();
    box[2] = box[3] = -std::numeric_limits<double>::infinity();
    std::string d;
    std::size_t at = 0;
    const auto point = [&] {
        const Point p = path.Points()[at++];
        box[0] = std::min(box[0], p.x);
        box[1] = std::min(box[1], p.y);
        box[2] = std::max(box[2], p.x);
        box[3] = std::max(box[3], p.y);
        return SvgNumber(p.x) + " " + SvgNumber(p.y);
    };
    for (const Path::Verb verb : path.Verbs()) {
        switch (verb) {
        case Path::Verb::Move: d += 'M', d += point(); break;
        case Path::Verb::Line: d += 'L', d += point(); break;
        case Path::Verb::Cubic: {
            d += 'C', d += point(), d += ' ', d += point(), d += ' ', d += point();
            break;
        }
        case Path::Verb::Close: d += "Z"; break;
        }
    }
    return d;
}

std::string Hex(const KestoRaster::Rgba& c)
{
    char text[8];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", c.r, c.g, c.b);
    return text;
}

// A rectangle over the box painted with the paint server id.
std::string Covering(const double box[4], const std::string& id)
{
    return "<rect x=\"" + SvgNumber(box[0]) + "\" y=\"" + SvgNumber(box[1]) + "\" width=\"" + SvgNumber(box[2] - box[0]) +
           "\" height=\"" + SvgNumber(box[3] - box[1]) + "\" fill=\"url(#" + id + ")\"/>";
}

// The paint as a PNG data URL: rendered through toImage into a w x h picture, premultiplied; a
// transparency as a mask's luminance (white where it lets everything through).
std::string PngOf(const Paint& paint, const KestoRaster::Affine& toImage, int w, int h)
{
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(w) * h);
    if (paint.transparency) {
        std::vector<std::uint8_t> levels(pixels.size());
        KestoRaster::RenderInBands(KestoRaster::PreparedPaint(paint, toImage, KestoRaster::Output::Mask8),
                            {levels.data(), w, h, w, KestoRaster::Output::Mask8}, {0, 0, w, h});
        std::transform(levels.begin(), levels.end(), pixels.begin(),
                       [](std::uint8_t m) { return 0xFF000000u | 0x010101u * m; });
    } else {
        KestoRaster::RenderInBands(KestoRaster::PreparedPaint(paint, toImage, KestoRaster::Output::Argb32),
                            {pixels.data(), w, h, w * 4, KestoRaster::Output::Argb32}, {0, 0, w, h});
    }
    return "data:image/png;base64," + Base64(KestoGDI::PngFile::EncodePremultiplied(pixels.data(), w, h, w * 4));
}

// A bitmap paint (a vector fill's tile among them) as an SVG pattern: one period of the tiling
// (the tile, or two by two of them mirrored) in the tile's own pixels, placed by the paint's
// points. The picture is the period's texels as the renderer shows them (recoloured, mirrored)
// with a one-texel border of the neighbouring periods' texels, so that a renderer's smoothing
// at the period's edges blends into the next period and no seam shows. Nothing for a paint
// without a picture or with degenerate points.
std::optional<std::string> BitmapPattern(const Paint& paint, const std::string& id)
{
    const std::vector<Point>& p = paint.points;
    if (paint.kind != Paint::Kind::Bitmap || !paint.image || paint.image->width <= 0 || paint.image->height <= 0 ||
        p.size() < 3)
        return std::nullopt;
    const double cross = (p[1].x - p[0].x) * (p[2].y - p[0].y) - (p[1].y - p[0].y) * (p[2].x - p[0].x);
    if (!(std::abs(cross) > 0) || !std::isfinite(cross))
        return std::nullopt;
    const int w = paint.image->width, h = paint.image->height;
    const int period = paint.mirroredTiles ? 2 : 1;
    // Texel (i, j) of the period is pixel (1 + i, 1 + j) of the picture.
    Paint texels = paint;
    texels.points = {{1, 1}, {1.0 + w, 1}, {1, 1.0 + h}};
    const std::string png = PngOf(texels, {}, w * period + 2, h * period + 2);
    const double ax = (p[1].x - p[0].x) / w, ay = (p[1].y - p[0].y) / w;
    const double bx = (p[2].x - p[0].x) / h, by = (p[2].y - p[0].y) / h;
    return "<pattern id=\"" + id + "\" patternUnits=\"userSpaceOnUse\" x=\"0\" y=\"0\" width=\"" +
           std::to_string(w * period) + "\" height=\"" + std::to_string(h * period) + "\" patternTransform=\"matrix(" +
           SvgNumber(ax) + " " + SvgNumber(ay) + " " + SvgNumber(bx) + " " + SvgNumber(by) + " " + SvgNumber(p[0].x) +
           " " + SvgNumber(p[0].y) + ")\"><image x=\"-1\" y=\"-1\" width=\"" + std::to_string(w * period + 2) +
           "\" height=\"" + std::to_string(h * period + 2) + "\"" +
           (paint.nearest ? " style=\"image-rendering:pixelated\"" : "") + " href=\"" + png + "\"/></pattern>";
}

} // namespace

SvgWriter::SvgWriter(double width, double height) : m_width(width), m_height(height) {}

std::pair<std::string, std::string> SvgWriter::PaintOf(const Paint& paint, const std::string& id, double x0, double y0,
                                                       double x1, double y1, double rasterScale)
{
    if (std::optional<SvgPaint::Fill> native = SvgPaint::Area(paint, id, x0, y0, x1, y1))
        return {std::move(native->defs), std::move(native->elements)};
    if (std::optional<std::string> pattern = BitmapPattern(paint, id)) {
        const double box[4] = {x0, y0, x1, y1};
        return {std::move(*pattern), Covering(box, id)};
    }
    // The renderer's picture of the box, whole pixels at the raster scale.
    const double s = rasterScale;
    const int w = std::clamp(static_cast<int>(std::ceil((x1 - x0) * s)), 1, 1 << 14);
    const int h = std::clamp(static_cast<int>(std::ceil((y1 - y0) * s)), 1, 1 << 14);
    const KestoRaster::Affine toImage{w / (x1 - x0), 0, 0, h / (y1 - y0), -x0 * w / (x1 - x0), -y0 * h / (y1 - y0)};
    return {"", "<image x=\"" + SvgNumber(x0) + "\" y=\"" + SvgNumber(y0) + "\" width=\"" + SvgNumber(x1 - x0) +
                    "\" height=\"" + SvgNumber(y1 - y0) + "\" preserveAspectRatio=\"none\" href=\"" +
                    PngOf(paint, toImage, w, h) + "\"/>"};
}

void SvgWriter::AddShape(const Path& outline, const KestoGDI::CFill& fill, const KestoGDI::CFill* transparency,
                         std::optional<KestoRaster::Rgba> stroke)
{
    double box[4];
    const std::string d = PathData(outline, box);
    if (!(box[2] > box[0]) || !(box[3] > box[1]))
        return;
    Markup shape = ShapeMarkup(outline, fill, transparency, std::to_string(m_shapes++), m_rasterScale, 0);
    m_defs += shape.defs;
    m_body += shape.body;
    if (stroke)
        m_body += "<path d=\"" + d + "\" fill=\"none\" stroke=\"" + Hex(*stroke) +
                  "\" stroke-width=\"1\" vector-effect=\"non-scaling-stroke\"/>";
}

SvgWriter::Markup SvgWriter::ShapeMarkup(const Path& outline, const KestoGDI::CFill& fill,
                                         const KestoGDI::CFill* transparency, const std::string& n, double rasterScale,
                                         int depth) const
{
    double box[4];
    const std::string d = PathData(outline, box);
    if (depth == 0) {
        // Only what the page shows is painted: a shape far past the page costs no larger picture.
        box[0] = std::max(box[0], 0.0), box[1] = std::max(box[1], 0.0);
        box[2] = std::min(box[2], m_width), box[3] = std::min(box[3], m_height);
    }
    if (!(box[2] > box[0]) || !(box[3] > box[1]))
        return {};
    Markup out;
    out.defs = "<clipPath id=\"c" + n + "\"><path d=\"" + d + "\"/></clipPath>";
    std::string group = "<g clip-path=\"url(#c" + n + ")\"";
    if (transparency) {
        if (const std::optional<Paint> levels = KestoGDI::FillPaint::From(*transparency, rasterScale)) {
            auto [defs, elements] = PaintOf(*levels, "t" + n, box[0], box[1], box[2], box[3], rasterScale);
            out.defs += defs + "<mask id=\"m" + n + "\" maskUnits=\"userSpaceOnUse\" x=\"" + SvgNumber(box[0]) +
                        "\" y=\"" + SvgNumber(box[1]) + "\" width=\"" + SvgNumber(box[2] - box[0]) + "\" height=\"" +
                        SvgNumber(box[3] - box[1]) + "\">" + elements + "</mask>";
            group += " mask=\"url(#m" + n + ")\"";
        }
    }
    std::string elements;
    const auto* vector = dynamic_cast<const KestoGDI::CFillVector*>(&fill);
    std::optional<std::string> tiles;
    if (vector && depth < kMaxVectorNesting)
        tiles = VectorPattern(*vector, "p" + n, rasterScale, depth);
    if (tiles) {
        out.defs += *tiles;
        elements = Covering(box, "p" + n);
    } else if (const std::optional<Paint> paint = KestoGDI::FillPaint::From(fill, rasterScale)) {
        auto [defs, shown] = PaintOf(*paint, "p" + n, box[0], box[1], box[2], box[3], rasterScale);
        out.defs += defs;
        elements = std::move(shown);
    } else {
        elements = "<path d=\"" + d + "\" fill=\"#c8c8c8\"/>"; // a kind the renderer does not paint
    }
    out.body = group + ">" + elements + "</g>";
    return out;
}

std::optional<std::string> SvgWriter::VectorPattern(const KestoGDI::CFillVector& fill, const std::string& id,
                                                    double rasterScale, int depth) const
{
    const std::optional<KestoGDI::FillPaint::VectorGrid> grid = KestoGDI::FillPaint::GridOf(fill, rasterScale);
    if (!grid || grid->instances.empty())
        return std::nullopt;
    // The drawing once, in its own coordinates; its pictures as sharp as the tile's pixels.
    const KestoRaster::Affine& first = grid->instances.front();
    const double scale = std::sqrt(std::abs(first.Determinant()));
    std::string defs, drawing;
    const std::vector<KestoGDI::VectorDrawing::Shape>& shapes = fill.GetMetaInstance()->GetShapes();
    for (std::size_t k = 0; k < shapes.size(); ++k) {
        if (!shapes[k].fill)
            continue;
        Markup shape = ShapeMarkup(shapes[k].outline, *shapes[k].fill, nullptr, id + "-" + std::to_string(k), scale,
                                   depth + 1);
        defs += shape.defs;
        drawing += shape.body;
    }
    // Each instance, and its copies a cell away on every side: what it puts outside the cell
    // comes in again from the other side.
    std::string uses;
    for (const KestoRaster::Affine& m : grid->instances)
        for (const int oy : {-grid->height, 0, grid->height})
            for (const int ox : {-grid->width, 0, grid->width})
                uses += "<use href=\"#" + id + "-d\" transform=\"matrix(" + SvgNumber(m.a) + " " + SvgNumber(m.b) + " " +
                        SvgNumber(m.c) + " " + SvgNumber(m.d) + " " + SvgNumber(m.e + ox) + " " + SvgNumber(m.f + oy) +
                        ")\"/>";
    const double w = grid->width, h = grid->height;
    return defs + "<g id=\"" + id + "-d\">" + drawing + "</g><pattern id=\"" + id +
           "\" patternUnits=\"userSpaceOnUse\" x=\"0\" y=\"0\" width=\"" + std::to_string(grid->width) +
           "\" height=\"" + std::to_string(grid->height) + "\" patternTransform=\"matrix(" + SvgNumber(grid->a.x / w) +
           " " + SvgNumber(grid->a.y / w) + " " + SvgNumber(grid->b.x / h) + " " + SvgNumber(grid->b.y / h) + " " +
           SvgNumber(grid->origin.x) + " " + SvgNumber(grid->origin.y) + ")\">" + uses + "</pattern>";
}

std::string SvgWriter::Document() const
{
    const std::string page = m_page ? "<rect width=\"" + SvgNumber(m_width) + "\" height=\"" + SvgNumber(m_height) +
                                          "\" fill=\"" + Hex(*m_page) + "\"/>"
                                    : std::string();
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
           SvgNumber(m_width) + "\" height=\"" + SvgNumber(m_height) + "\" viewBox=\"0 0 " + SvgNumber(m_width) + " " +
           SvgNumber(m_height) + "\"><defs>" + m_defs + "</defs>" + page + m_body + "</svg>\n";
}

} // namespace KestoTool
