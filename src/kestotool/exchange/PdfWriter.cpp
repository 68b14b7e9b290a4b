#include "kestotool/exchange/PdfWriter.h"

#include "kestotool/exchange/StraightStops_p.h"
#include "kestotool/gdi/FillPaint.h"
#include "kestotool/raster/Bands.h"
#include "kestotool/raster/PreparedPaint.h"

#include <cairo-pdf.h>
#include <cairo.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace KestoTool {

using KestoRaster::Paint;
using KestoRaster::Path;
using KestoRaster::Point;
using KestoRaster::Rgba;

using Box = std::array<double, 4>; // x0, y0, x1, y1

struct PdfWriter::Surface {
    std::string bytes;
    cairo_surface_t* surface = nullptr;
    cairo_t* cr = nullptr;
    double width = 0, height = 0; // the page, in drawing units
    double pointsPerUnit = 0.75;
    double pixelsPerUnit = 1;

    ~Surface()
    {
        if (cr)
            cairo_destroy(cr);
        if (surface)
            cairo_surface_destroy(surface);
    }
};

namespace {

cairo_status_t Append(void* closure, const unsigned char* data, unsigned int length)
{
    static_cast<std::string*>(closure)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
}

void Trace(cairo_t* cr, const Path& path)
{
    cairo_new_path(cr);
    std::size_t at = 0;
    const auto& p = path.Points();
    for (const Path::Verb verb : path.Verbs()) {
        switch (verb) {
        case Path::Verb::Move: cairo_move_to(cr, p[at].x, p[at].y), at += 1; break;
        case Path::Verb::Line: cairo_line_to(cr, p[at].x, p[at].y), at += 1; break;
        case Path::Verb::Cubic:
            cairo_curve_to(cr, p[at].x, p[at].y, p[at + 1].x, p[at + 1].y, p[at + 2].x, p[at + 2].y);
            at += 3;
            break;
        case Path::Verb::Close: cairo_close_path(cr); break;
        }
    }
}

// The path's bounds, controls included.
Box Bounds(const Path& path)
{
    Box box{std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity(),
            -std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};
    for (const Point p : path.Points())
        box = {std::min(box[0], p.x), std::min(box[1], p.y), std::max(box[2], p.x), std::max(box[3], p.y)};
    return box;
}

void SetColour(cairo_t* cr, const Rgba& c)
{
    cairo_set_source_rgba(cr, c.r / 255.0, c.g / 255.0, c.b / 255.0, c.a / 255.0);
}

// A gradient pattern's stops, padded at both ends as the renderer pads.
void AddStops(cairo_pattern_t* pattern, const std::vector<KestoRaster::RampStop>& stops)
{
    for (const KestoRaster::RampStop& s : StraightStops(stops))
        cairo_pattern_add_color_stop_rgba(pattern, s.position / 10000, s.colour.r / 255.0, s.colour.g / 255.0,
                                          s.colour.b / 255.0, s.colour.a / 255.0);
    cairo_pattern_set_extend(pattern, CAIRO_EXTEND_PAD);
}

void PaintPattern(cairo_t* cr, cairo_pattern_t* pattern)
{
    cairo_set_source(cr, pattern);
    cairo_paint(cr);
    cairo_pattern_destroy(pattern);
}

// The renderer's picture of the box at pixelsPerUnit, painted over it.
void PaintImage(cairo_t* cr, const Paint& paint, const Box& box, double pixelsPerUnit)
{
    const double bw = box[2] - box[0], bh = box[3] - box[1];
    const int w = std::clamp(static_cast<int>(std::ceil(bw * pixelsPerUnit)), 1, PdfWriter::MaxImageSide);
    const int h = std::clamp(static_cast<int>(std::ceil(bh * pixelsPerUnit)), 1, PdfWriter::MaxImageSide);
    cairo_surface_t* image = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, w, h);
    if (cairo_surface_status(image) != CAIRO_STATUS_SUCCESS) {
        cairo_surface_destroy(image);
        return;
    }
    // The renderer's words are the image's: native 32-bit, alpha on top, premultiplied.
    cairo_surface_flush(image);
    const KestoRaster::Affine toImage{w / bw, 0, 0, h / bh, -box[0] * w / bw, -box[1] * h / bh};
    KestoRaster::RenderInBands(KestoRaster::PreparedPaint(paint, toImage, KestoRaster::Output::Argb32),
                        {cairo_image_surface_get_data(image), w, h, cairo_image_surface_get_stride(image),
                         KestoRaster::Output::Argb32},
                        {0, 0, w, h});
    cairo_surface_mark_dirty(image);
    cairo_pattern_t* pattern = cairo_pattern_create_for_surface(image);
    cairo_matrix_t toPattern;
    cairo_matrix_init(&toPattern, w / bw, 0, 0, h / bh, -box[0] * w / bw, -box[1] * h / bh);
    cairo_pattern_set_matrix(pattern, &toPattern);
    // Shown pixel for pixel, not smoothed: the picture is already at the page's resolution.
    cairo_pattern_set_filter(pattern, CAIRO_FILTER_FAST);
    cairo_set_source(cr, pattern);
    cairo_rectangle(cr, box[0], box[1], bw, bh);
    cairo_fill(cr);
    cairo_pattern_destroy(pattern);
    cairo_surface_destroy(image);
}

// A square paint as four wedges from its centre, each a linear gradient along its half axis in
// the space of the axes (as the SVG writer draws it); false for a degenerate one.
bool PaintDiamond(cairo_t* cr, const Paint& paint, const Box& box)
{
    const std::vector<Point>& p = paint.points;
    const Point e{p[1].x - p[0].x, p[1].y - p[0].y}, f{p[2].x - p[0].x, p[2].y - p[0].y};
    const double det = e.x * f.y - e.y * f.x;
    if (!(std::abs(det) > 0) || !std::isfinite(det))
        return false;
    double reach = 1;
    for (const Point corner : {Point{box[0], box[1]}, Point{box[2], box[1]}, Point{box[0], box[3]}, Point{box[2], box[3]}}) {
        const double dx = corner.x - p[0].x, dy = corner.y - p[0].y;
        reach = std::max({reach, std::abs((dx * f.y - dy * f.x) / det), std::abs((e.x * dy - e.y * dx) / det)});
    }
    const double r = reach + 1, over = r * 1.002;
    const struct {
        double x2, y2;
        Point a, b;
    } wedges[] = {{0, 1, {r, r}, {-r, r}}, {0, -1, {r, -r}, {-r, -r}}, {1, 0, {r, over}, {r, -over}}, {-1, 0, {-r, over}, {-r, -over}}};
    for (const auto& wedge : wedges) {
        cairo_save(cr);
        cairo_matrix_t axes;
        cairo_matrix_init(&axes, e.x, e.y, f.x, f.y, p[0].x, p[0].y);
        cairo_transform(cr, &axes);
        cairo_move_to(cr, 0, 0);
        cairo_line_to(cr, wedge.a.x, wedge.a.y);
        cairo_line_to(cr, wedge.b.x, wedge.b.y);
        cairo_close_path(cr);
        cairo_pattern_t* gradient = cairo_pattern_create_linear(0, 0, wedge.x2, wedge.y2);
        AddStops(gradient, paint.stops);
        cairo_set_source(cr, gradient);
        cairo_fill(cr);
        cairo_pattern_destroy(gradient);
        cairo_restore(cr);
    }
    return true;
}

// A three- or four-colour paint as a mesh of patches with a colour at each corner: the
// quadrilateral itself, and around a parallelogram the strips and corners where the renderer
// holds the edges' colours. False where a mesh cannot say it exactly: a three-colour field
// whose fourth corner's colour falls outside 0..255 (it is clipped inside the figure), or a
// quadrilateral that is no parallelogram and does not hold the whole box.
bool PaintMesh(cairo_t* cr, const Paint& paint, const Box& box)
{
    const std::vector<Point>& p = paint.points;
    const bool three = paint.kind == Paint::Kind::ThreeColour;
    if (paint.colours.size() < (three ? 3u : 4u))
        return false;
    const Point o = p[0], e1{p[1].x - o.x, p[1].y - o.y}, e2{p[2].x - o.x, p[2].y - o.y};
    const Point e3 = three ? Point{0, 0} : Point{p[3].x - p[1].x - p[2].x + o.x, p[3].y - p[1].y - p[2].y + o.y};
    std::array<Rgba, 4> c{paint.colours[0], paint.colours[1], paint.colours[2], three ? Rgba{} : paint.colours[3]};
    if (three) {
        const auto fourth = [&](auto channel) { return channel(c[1]) + channel(c[2]) - channel(c[0]); };
        const int r = fourth([](const Rgba& x) { return int(x.r); }), g = fourth([](const Rgba& x) { return int(x.g); });
        const int b = fourth([](const Rgba& x) { return int(x.b); }), a = fourth([](const Rgba& x) { return int(x.a); });
        if (std::min({r, g, b, a}) < 0 || std::max({r, g, b, a}) > 255)
            return false;
        c[3] = {std::uint8_t(r), std::uint8_t(g), std::uint8_t(b), std::uint8_t(a)};
    }
    const double det = e1.x * e2.y - e1.y * e2.x;
    if (!(std::abs(det) > 1e-12) || !std::isfinite(det))
        return false;
    // How far the box reaches in the figure's coordinates (exact for a parallelogram).
    double u0 = 0, u1 = 1, v0 = 0, v1 = 1;
    for (const Point q : {Point{box[0], box[1]}, Point{box[2], box[1]}, Point{box[0], box[3]}, Point{box[2], box[3]}}) {
        const double dx = q.x - o.x, dy = q.y - o.y;
        const double u = (dx * e2.y - dy * e2.x) / det, v = (e1.x * dy - e1.y * dx) / det;
        u0 = std::min(u0, u - 0.01), u1 = std::max(u1, u + 0.01), v0 = std::min(v0, v - 0.01), v1 = std::max(v1, v + 0.01);
    }
    const bool parallelogram = e3.x == 0 && e3.y == 0;
    if (!parallelogram && (u0 < 0 || u1 > 1 || v0 < 0 || v1 > 1)) {
        // Only the figure itself, then: the box must lie inside it (a convex quadrilateral).
        const Point corners[] = {p[0], p[1], p[3], p[2]};
        for (const Point q : {Point{box[0], box[1]}, Point{box[2], box[1]}, Point{box[0], box[3]}, Point{box[2], box[3]}}) {
            int sign = 0;
            for (int i = 0; i < 4; ++i) {
                const Point a = corners[i], b = corners[(i + 1) % 4];
                const double cross = (b.x - a.x) * (q.y - a.y) - (b.y - a.y) * (q.x - a.x);
                const int s = cross > 0 ? 1 : cross < 0 ? -1 : 0;
                if (s != 0 && sign != 0 && s != sign)
                    return false;
                sign = s != 0 ? s : sign;
            }
        }
        u0 = v0 = 0, u1 = v1 = 1;
    }
    const auto at = [&](double u, double v) {
        return Point{o.x + u * e1.x + v * e2.x + u * v * e3.x, o.y + u * e1.y + v * e2.y + u * v * e3.y};
    };
    const auto colour = [&](double u, double v) { // the corners' blend, held at the figure's edges
        u = std::clamp(u, 0.0, 1.0), v = std::clamp(v, 0.0, 1.0);
        const auto mix = [&](auto channel) {
            const double top = channel(c[0]) + u * (channel(c[1]) - channel(c[0]));
            const double bottom = channel(c[2]) + u * (channel(c[3]) - channel(c[2]));
            return (top + v * (bottom - top)) / 255;
        };
        return std::array<double, 4>{mix([](const Rgba& x) { return double(x.r); }), mix([](const Rgba& x) { return double(x.g); }),
                                     mix([](const Rgba& x) { return double(x.b); }), mix([](const Rgba& x) { return double(x.a); })};
    };
    const double us[] = {u0, 0, 1, u1}, vs[] = {v0, 0, 1, v1};
    cairo_pattern_t* mesh = cairo_pattern_create_mesh();
    for (int j = 0; j < 3; ++j) {
        for (int i = 0; i < 3; ++i) {
            if (!(us[i + 1] > us[i]) || !(vs[j + 1] > vs[j]))
                continue;
            const double pu[] = {us[i], us[i + 1], us[i + 1], us[i]}, pv[] = {vs[j], vs[j], vs[j + 1], vs[j + 1]};
            cairo_mesh_pattern_begin_patch(mesh);
            for (int k = 0; k < 4; ++k) {
                const Point q = at(pu[k], pv[k]);
                (k == 0 ? cairo_mesh_pattern_move_to : cairo_mesh_pattern_line_to)(mesh, q.x, q.y);
            }
            for (int k = 0; k < 4; ++k) {
                const std::array<double, 4> rgba = colour(pu[k], pv[k]);
                cairo_mesh_pattern_set_corner_color_rgba(mesh, static_cast<unsigned>(k), rgba[0], rgba[1], rgba[2], rgba[3]);
            }
            cairo_mesh_pattern_end_patch(mesh);
        }
    }
    PaintPattern(cr, mesh);
    return true;
}

// Paints the paint over the current clip, which lies inside box.
void PaintFill(cairo_t* cr, const Paint& paint, const Box& box, double pixelsPerUnit)
{
    const std::vector<Point>& p = paint.points;
    switch (paint.kind) {
    case Paint::Kind::Solid:
        if (!paint.colours.empty()) {
            SetColour(cr, paint.colours[0]);
            cairo_paint(cr);
            return;
        }
        break;
    case Paint::Kind::Linear:
        if (p.size() >= 2) {
            cairo_pattern_t* gradient = cairo_pattern_create_linear(p[0].x, p[0].y, p[1].x, p[1].y);
            AddStops(gradient, paint.stops);
            return PaintPattern(cr, gradient);
        }
        break;
    case Paint::Kind::Radial:
    case Paint::Kind::Elliptical:
        if (p.size() >= 2) {
            // The unit circle, taken to the axes (the second turned a right angle for a circle).
            const Point e{p[1].x - p[0].x, p[1].y - p[0].y};
            const Point f = paint.kind == Paint::Kind::Radial || p.size() < 3 ? Point{-e.y, e.x}
                                                                              : Point{p[2].x - p[0].x, p[2].y - p[0].y};
            cairo_matrix_t toPattern;
            cairo_matrix_init(&toPattern, e.x, e.y, f.x, f.y, p[0].x, p[0].y);
            if (cairo_matrix_invert(&toPattern) != CAIRO_STATUS_SUCCESS)
                break;
            cairo_pattern_t* gradient = cairo_pattern_create_radial(0, 0, 0, 0, 0, 1);
            AddStops(gradient, paint.stops);
            cairo_pattern_set_matrix(gradient, &toPattern);
            return PaintPattern(cr, gradient);
        }
        break;
    case Paint::Kind::Square:
        if (p.size() >= 3 && PaintDiamond(cr, paint, box))
            return;
        break;
    case Paint::Kind::ThreeColour:
    case Paint::Kind::FourColour:
        if (p.size() >= (paint.kind == Paint::Kind::ThreeColour ? 3u : 4u) && PaintMesh(cr, paint, box))
            return;
        break;
    case Paint::Kind::Conical:
    case Paint::Kind::Plasma:
    case Paint::Kind::Bitmap: break;
    }
    PaintImage(cr, paint, box, pixelsPerUnit); // no shading for the kind, or a degenerate one
}

// A transparency's paint as the coverage a soft mask takes: black, as opaque as the level lets
// through.
Paint AsAlpha(Paint levels)
{
    levels.transparency = false;
    for (Rgba& c : levels.colours)
        c = {0, 0, 0, static_cast<std::uint8_t>(255 - c.r)};
    for (KestoRaster::RampStop& s : levels.stops)
        s.colour = {0, 0, 0, static_cast<std::uint8_t>(255 - s.colour.r)};
    return levels;
}

} // namespace

PdfWriter::PdfWriter(double width, double height, double pointsPerUnit, double rasterDpi)
    : m_surface(std::make_unique<Surface>())
{
    Surface& s = *m_surface;
    s.width = width, s.height = height;
    s.pointsPerUnit = pointsPerUnit;
    s.pixelsPerUnit = rasterDpi / 72 * pointsPerUnit;
    s.surface = cairo_pdf_surface_create_for_stream(Append, &s.bytes, width * pointsPerUnit, height * pointsPerUnit);
    s.cr = cairo_create(s.surface);
    cairo_scale(s.cr, pointsPerUnit, pointsPerUnit);
}

PdfWriter::~PdfWriter() = default;

void PdfWriter::SetPageColour(Rgba colour)
{
    if (!m_surface->cr)
        return;
    cairo_t* cr = m_surface->cr;
    SetColour(cr, colour);
    cairo_paint(cr);
}

void PdfWriter::AddShape(const Path& outline, const KestoGDI::CFill& fill, const KestoGDI::CFill* transparency,
                         std::optional<Rgba> stroke)
{
    cairo_t* cr = m_surface->cr;
    // Only what the page shows is painted: a shape far past the page costs no larger picture.
    Box box = Bounds(outline);
    box = {std::max(box[0], 0.0), std::max(box[1], 0.0), std::min(box[2], m_surface->width),
           std::min(box[3], m_surface->height)};
    if (!cr || !(box[2] > box[0]) || !(box[3] > box[1]))
        return;
    const double pixels = m_surface->pixelsPerUnit;
    const std::optional<Paint> paint = KestoGDI::FillPaint::From(fill, pixels);
    const std::optional<Paint> levels = transparency ? KestoGDI::FillPaint::From(*transparency, pixels) : std::nullopt;
    cairo_save(cr);
    Trace(cr, outline);
    cairo_clip(cr);
    if (levels)
        cairo_push_group(cr);
    if (paint) {
        PaintFill(cr, *paint, box, pixels);
    } else {
        SetColour(cr, {200, 200, 200, 255}); // a kind the renderer does not paint
        cairo_paint(cr);
    }
    if (levels) {
        cairo_pop_group_to_source(cr);
        cairo_push_group_with_content(cr, CAIRO_CONTENT_ALPHA);
        PaintFill(cr, AsAlpha(*levels), box, pixels);
        cairo_pattern_t* mask = cairo_pop_group(cr);
        cairo_mask(cr, mask);
        cairo_pattern_destroy(mask);
    }
    cairo_restore(cr);
    if (stroke) {
        Trace(cr, outline);
        SetColour(cr, *stroke);
        cairo_set_line_width(cr, 0.75 / m_surface->pointsPerUnit); // a pixel at 96 per inch
        cairo_stroke(cr);
    }
}

std::string PdfWriter::Document()
{
    Surface& s = *m_surface;
    if (!s.cr)
        return s.bytes;
    cairo_destroy(s.cr);
    s.cr = nullptr;
    cairo_surface_finish(s.surface);
    const bool made = cairo_surface_status(s.surface) == CAIRO_STATUS_SUCCESS;
    cairo_surface_destroy(s.surface);
    s.surface = nullptr;
    if (!made)
        s.bytes.clear();
    return s.bytes;
}

} // namespace KestoTool
