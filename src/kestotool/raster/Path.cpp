#include "kestotool/raster/Path.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace KestoRaster {

Path Path::Rectangle(Point corner, Point opposite)
{
    Path p;
    p.MoveTo(corner);
    p.LineTo({opposite.x, corner.y});
    p.LineTo(opposite);
    p.LineTo({corner.x, opposite.y});
    p.Close();
    return p;
}

Path Path::Ellipse(Point centre, double rx, double ry)
{
    // The control distance that puts a quarter arc's midpoint on the circle.
    constexpr double kArc = 0.5522847498;
    const double kx = kArc * rx, ky = kArc * ry, cx = centre.x, cy = centre.y;
    Path p;
    p.MoveTo({cx + rx, cy});
    p.CubicTo({cx + rx, cy + ky}, {cx + kx, cy + ry}, {cx, cy + ry});
    p.CubicTo({cx - kx, cy + ry}, {cx - rx, cy + ky}, {cx - rx, cy});
    p.CubicTo({cx - rx, cy - ky}, {cx - kx, cy - ry}, {cx, cy - ry});
    p.CubicTo({cx + kx, cy - ry}, {cx + rx, cy - ky}, {cx + rx, cy});
    p.Close();
    return p;
}

Path Path::Mapped(const Affine& m) const
{
    Path out = *this;
    for (Point& p : out.m_points)
        p = m.Apply(p);
    return out;
}

void Path::MoveTo(Point p)
{
    m_pieceStart = m_points.size();
    m_verbs.push_back(Verb::Move);
    m_points.push_back(p);
}

void Path::StartPiece(Point first)
{
    if (m_verbs.empty())
        MoveTo(first);
    else if (m_verbs.back() == Verb::Close)
        MoveTo(m_points[m_pieceStart]);
}

void Path::LineTo(Point p)
{
    StartPiece(p);
    m_verbs.push_back(Verb::Line);
    m_points.push_back(p);
}

void Path::CubicTo(Point c1, Point c2, Point end)
{
    StartPiece(c1);
    m_verbs.push_back(Verb::Cubic);
    m_points.insert(m_points.end(), {c1, c2, end});
}

void Path::Close()
{
    if (!m_verbs.empty() && m_verbs.back() != Verb::Close)
        m_verbs.push_back(Verb::Close);
}

std::vector<std::vector<Point>> Path::Flatten(const Affine& toDevice, double tolerance) const
{
    tolerance = tolerance > 1e-3 ? tolerance : 1e-3;
    std::vector<std::vector<Point>> pieces;
    std::vector<Point> piece;
    const auto finish = [&] {
        const bool finite =
            std::all_of(piece.begin(), piece.end(), [](Point p) { return std::isfinite(p.x) && std::isfinite(p.y); });
        if (piece.size() >= 3 && finite)
            pieces.push_back(std::move(piece));
        piece.clear();
    };
    std::size_t at = 0;
    for (const Verb verb : m_verbs) {
        switch (verb) {
        case Verb::Move:
            finish();
            piece.push_back(toDevice.Apply(m_points[at++]));
            break;
        case Verb::Line: piece.push_back(toDevice.Apply(m_points[at++])); break;
        case Verb::Cubic: {
            const Point p0 = piece.back();
            const Point p1 = toDevice.Apply(m_points[at]);
            const Point p2 = toDevice.Apply(m_points[at + 1]);
            const Point p3 = toDevice.Apply(m_points[at + 2]);
            at += 3;
            // Uniform steps: the second differences bound how far a chord strays from the curve.
            const double dd = std::max(std::hypot(p0.x - 2 * p1.x + p2.x, p0.y - 2 * p1.y + p2.y),
                                       std::hypot(p1.x - 2 * p2.x + p3.x, p1.y - 2 * p2.y + p3.y));
            const double wanted = std::ceil(std::sqrt(0.75 * dd / tolerance));
            const int steps = std::isfinite(wanted) ? static_cast<int>(std::clamp(wanted, 1.0, 1024.0)) : 1;
            for (int i = 1; i <= steps; ++i) {
                const double t = static_cast<double>(i) / steps, s = 1 - t;
                const double a = s * s * s, b = 3 * s * s * t, c = 3 * s * t * t, d = t * t * t;
                piece.push_back({a * p0.x + b * p1.x + c * p2.x + d * p3.x, a * p0.y + b * p1.y + c * p2.y + d * p3.y});
            }
            break;
        }
        case Verb::Close: finish(); break;
        }
    }
    finish();
    return pieces;
}

namespace {

// Signed areas accumulated per pixel: a row's running sum of them is the winding-weighted
// coverage of each pixel. One spare column takes what falls past the right edge. The rows are
// accumulated a band at a time, so that the cells held stay small (a 4K-wide clip would
// otherwise take 66 MB of them) and in the cache; each band goes over the edges again.
class Accumulator {
public:
    Accumulator(int width, int height) : m_width(width), m_height(height) {}

    // An edge from a to b in clip coordinates. It is split where it crosses the clip's left or
    // right side; a part left of the clip runs down its left side (it still winds every pixel to
    // its right), a part right of it down the spare column (it winds nothing visible).
    void Edge(Point a, Point b)
    {
        const double w = m_width;
        for (const double x : {0.0, w}) {
            if ((a.x < x && b.x > x) || (a.x > x && b.x < x)) {
                const Point m{x, a.y + (x - a.x) / (b.x - a.x) * (b.y - a.y)};
                Edge(a, m);
                Edge(m, b);
                return;
            }
        }
        if (a.y == b.y || std::max(a.y, b.y) <= 0 || std::min(a.y, b.y) >= m_height)
            return;
        a.x = std::clamp(a.x, 0.0, w);
        b.x = std::clamp(b.x, 0.0, w);
        m_lines.push_back(a.y < b.y ? Line{a, b, 1} : Line{b, a, -1});
    }

    // Each row's coverage, 0..255, into the mask at (x0, y0). Answers the work done: the cells
    // the edges touched and the pixels written.
    std::size_t Write(const Target& mask, int x0, int y0)
    {
        const std::size_t stride = static_cast<std::size_t>(m_width) + 2;
        const int bandRows = static_cast<int>(std::clamp<std::size_t>(kBandCells / stride, 1, m_height));
        std::vector<double>& cells = Cells();
        std::size_t work = 0;
        for (int top = 0; top < m_height; top += bandRows) {
            const int bottom = std::min(m_height, top + bandRows);
            cells.assign(stride * static_cast<std::size_t>(bottom - top), 0.0);
            for (const Line& line : m_lines)
                if (line.a.y < bottom && line.b.y > top)
                    work += Rows(line, top, bottom, cells.data());
            for (int y = top; y < bottom; ++y) {
                auto* row = static_cast<std::uint8_t*>(mask.pixels) + (y0 + y) * mask.stride + x0;
                const double* cell = &cells[static_cast<std::size_t>(y - top) * stride];
                double sum = 0;
                for (int x = 0; x < m_width; ++x) {
                    sum += cell[x];
                    const double cover = std::min(std::abs(sum), 1.0);
                    row[x] = static_cast<std::uint8_t>(cover * 255 + 0.5);
                }
            }
            work += stride * static_cast<std::size_t>(bottom - top);
        }
        return work;
    }

private:
    // Top to bottom, with the way it winds.
    struct Line {
        Point a, b;
        double direction;
    };

    // The rows top..bottom of a line inside 0 <= x <= width, into the band's cells (row top
    // first): in each row it crosses, the row's share of its height is spread over the pixels
    // it passes by the area to their right that it closes off. Answers the cells touched.
    std::size_t Rows(const Line& line, int top, int bottom, double* cells) const
    {
        const auto [a, b, direction] = line;
        const double dxdy = (b.x - a.x) / (b.y - a.y);
        const int first = static_cast<int>(std::max<double>(top, std::floor(a.y)));
        const int last = static_cast<int>(std::min<double>(bottom, std::ceil(b.y)));
        std::size_t touched = 0;
        for (int y = first; y < last; ++y) {
            const double rowTop = std::max<double>(y, a.y);
            const double rowBottom = std::min<double>(y + 1, b.y);
            // Interpolation may round a hair outside the ends' columns; the cells end there.
            const double xt = std::clamp(a.x + (rowTop - a.y) * dxdy, 0.0, static_cast<double>(m_width));
            const double xb = std::clamp(a.x + (rowBottom - a.y) * dxdy, 0.0, static_cast<double>(m_width));
            touched += Span(&cells[static_cast<std::size_t>(y - top) * (m_width + 2)], std::min(xt, xb),
                            std::max(xt, xb), (rowBottom - rowTop) * direction);
        }
        return touched;
    }

    // A piece of edge within one row, from x = left to x = right, of signed height h. Pixel i
    // is covered by h times the mean, over its width, of the share of the row's height for
    // which the edge lies left of that x; the cells hold the differences between neighbours,
    // and h itself from the first pixel wholly right of the edge on. Answers the cells touched.
    static std::size_t Span(double* cells, double left, double right, double h)
    {
        const int i0 = static_cast<int>(std::floor(left));
        const int i1 = std::max(i0 + 1, static_cast<int>(std::ceil(right)));
        const double width = right - left;
        const auto areaLeftOf = [&](double x) {
            if (x <= left)
                return 0.0;
            if (x >= right)
                return 0.5 * width + (x - right);
            return 0.5 * (x - left) * (x - left) / width;
        };
        double previous = 0;
        for (int i = i0; i < i1; ++i) {
            const double cover = h * (areaLeftOf(i + 1) - areaLeftOf(i));
            cells[i] += cover - previous;
            previous = cover;
        }
        cells[i1] += h - previous;
        return static_cast<std::size_t>(i1 - i0) + 1;
    }

    // The thread's own, kept from call to call: fresh ones cost more in page faults than the
    // coverage itself.
    static std::vector<double>& Cells()
    {
        thread_local std::vector<double> cells;
        return cells;
    }

    static constexpr std::size_t kBandCells = std::size_t{1} << 18; // 2 MB

    int m_width;
    int m_height;
    std::vector<Line> m_lines;
};

} // namespace

std::size_t RenderCoverage(const Path& path, const Affine& toDevice, const Target& mask, const Clip& clip)
{
    const Clip c{std::max(clip.x0, 0), std::max(clip.y0, 0), std::min(clip.x1, mask.width),
                 std::min(clip.y1, mask.height)};
    if (!mask.pixels || mask.format != Output::Mask8 || c.x1 <= c.x0 || c.y1 <= c.y0)
        return 0;
    Accumulator cells(c.x1 - c.x0, c.y1 - c.y0);
    // Doubles keep sub-pixel precision far beyond any real outline; absurd coordinates are held
    // at 1e15 pixels so that no difference of two of them overflows.
    constexpr double kFar = 1e15;
    const auto local = [&](Point p) {
        return Point{std::clamp(p.x - c.x0, -kFar, kFar), std::clamp(p.y - c.y0, -kFar, kFar)};
    };
    for (const auto& piece : path.Flatten(toDevice)) {
        for (std::size_t i = 0; i < piece.size(); ++i)
            cells.Edge(local(piece[i]), local(piece[(i + 1) % piece.size()]));
    }
    return cells.Write(mask, c.x0, c.y0);
}

} // namespace KestoRaster
