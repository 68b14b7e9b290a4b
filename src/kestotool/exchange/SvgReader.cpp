#include "kestotool/exchange/SvgReader.h"

#include "kestotool/exchange/SvgSyntax_p.h"
#include "kestotool/exchange/SvgText_p.h"
#include "kestotool/gdi/CFillEllipse.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillRadial.h"
#include "kestotool/gdi/CFillSquare.h"
#include "kestotool/gdi/CFillSolid.h"
#include "kestotool/gdi/CMonoColour.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/gdi/CTransparencyEllipse.h"
#include "kestotool/gdi/CTransparencyFlat.h"
#include "kestotool/gdi/CTransparencyLinear.h"
#include "kestotool/gdi/CTransparencyRadial.h"
#include "kestotool/gdi/CTransparencySquare.h"
#include "kestotool/geometry/CoordinateRange.h"
#include "kestotool/platform/ColourRef.h"

#include <pugixml.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>

namespace KestoTool {

using Kesto2D::K2DDblPoint;
using Kesto2D::K2DLtGeneral;
using KestoGDI::CFill;
using KestoRaster::Paint;
using KestoRaster::Path;
using KestoRaster::Point;
using KestoRaster::Rgba;

namespace {

using Message = SvgReader::Message;

// Every message the reader gives; kPatterns lists them for hosts that translate them.
namespace Says {
constexpr std::string_view kTooLarge = "the file is %1 MB; SVG files up to %2 MB are read";
constexpr std::string_view kNotXml = "the file is not well-formed XML (%1 at byte %2)";
constexpr std::string_view kEntities = "the file declares XML entities, which are not read";
constexpr std::string_view kNotSvg = "the file is XML but not SVG (its outermost element is <%1>)";
constexpr std::string_view kPageSize = "the page is %1 x %2 units; pages from 1 to %3 units a side are read";
constexpr std::string_view kShapes = "the file has more than %1 shapes";
constexpr std::string_view kPathSegments = "a path has more than %1 segments";
constexpr std::string_view kFileSegments = "the file has more than %1 path segments";
constexpr std::string_view kMore = "more";
constexpr std::string_view kAttribute = "attribute %1 \"%2\"";
constexpr std::string_view kStops = "gradient stops past %1";
constexpr std::string_view kViewBox = "viewBox \"%1\"";
constexpr std::string_view kStopCount = "fills with more stops than a fill takes";
constexpr std::string_view kDepth = "groups nested deeper than %1";
constexpr std::string_view kElement = "<%1>";
constexpr std::string_view kTransform = "transform \"%1\"";
constexpr std::string_view kStroke = "stroke";
constexpr std::string_view kFilter = "filter";
constexpr std::string_view kEvenOdd = "fill-rule evenodd (read as nonzero)";
constexpr std::string_view kMasks = "masks other than one gradient or colour";
constexpr std::string_view kOutOfRange = "shapes outside the coordinate range";
constexpr std::string_view kPaintElement = "<%1> paint";
constexpr std::string_view kPaintReference = "paint url(#%1)";
constexpr std::string_view kFill = "fill \"%1\"";
constexpr std::string_view kSpread = "spreadMethod %1 (read as pad)";
constexpr std::string_view kGradientTransform = "gradientTransform \"%1\"";
constexpr std::string_view kFocalPoint = "radial gradients' focal points (read as centred)";
constexpr std::string_view kClipPath = "clip-path (the clipped shapes are read whole)";
} // namespace Says

constexpr std::array kPatterns{
    Says::kTooLarge,       Says::kNotXml,
    Says::kEntities,       Says::kNotSvg,
    Says::kPageSize,       Says::kShapes,
    Says::kPathSegments,   Says::kFileSegments,
    Says::kMore,           Says::kAttribute,
    Says::kStops,          Says::kViewBox,
    Says::kStopCount,      Says::kDepth,
    Says::kElement,        Says::kTransform,
    Says::kStroke,         Says::kFilter,
    Says::kEvenOdd,        Says::kMasks,
    Says::kOutOfRange,     Says::kPaintElement,
    Says::kPaintReference, Says::kFill,
    Says::kSpread,         Says::kGradientTransform,
    Says::kFocalPoint,     Says::kClipPath,
};

// Why a file is refused.
struct Refused {
    Message message;
};

// A piece of the file quoted in a message, cut short.
std::string Quoted(std::string_view text, std::size_t most)
{
    return std::string(text.substr(0, most));
}

// The name without a namespace prefix ("svg:rect" is a rect).
std::string_view LocalName(const pugi::xml_node& node)
{
    const std::string_view name = node.name();
    const std::size_t colon = name.find(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

Point Apply(const K2DLtGeneral& m, Point p)
{
    const K2DDblPoint q = m.ApplyTo(K2DDblPoint(p.x, p.y));
    return {q.x, q.y};
}

Path Mapped(const Path& path, const K2DLtGeneral& m)
{
    return path.Mapped({m.GetM11(), m.GetM12(), m.GetM21(), m.GetM22(), m.GetTranslation().dx, m.GetTranslation().dy});
}

// A shape as read, its paint still in the renderer's terms (solid, linear, radial, elliptical,
// square), with the end of a linear gradient's own axis (which says how four wedges make a
// square paint).
struct Read {
    Path outline;
    std::optional<Paint> paint;
    Point axisEnd;
    std::optional<Paint> levels; // a transparency's paint, levels as in a transparency
};

// What a group passes down to what it holds.
struct Context {
    K2DLtGeneral toDrawing;
    std::string fill = "black";
    double fillOpacity = 1;
    double opacity = 1;
};

// The most things a file's list of what was skipped names, and the most stops read of one
// gradient (far more than any gradient a person makes).
constexpr std::size_t kMaxSkipped = 64;
constexpr std::size_t kMaxStops = 1024;

class Reader {
public:
    Reader(const SvgReader::Limits& limits, SvgReader::Drawing& drawing) : m_limits(limits), m_drawing(drawing) {}

    void Document(const pugi::xml_document& document);

private:
    // Names what was not read, once; a file that keeps finding new things to skip is named
    // as doing so after kMaxSkipped of them.
    void Skip(Message what)
    {
        if (m_drawing.skipped.size() > kMaxSkipped ||
            std::find(m_drawing.skipped.begin(), m_drawing.skipped.end(), what) != m_drawing.skipped.end())
            return;
        m_drawing.skipped.push_back(m_drawing.skipped.size() == kMaxSkipped ? Message{Says::kMore, {}}
                                                                            : std::move(what));
    }

    std::optional<std::string_view> Property(const pugi::xml_node& node, const char* name) const
    {
        if (const pugi::xml_attribute style = node.attribute("style"))
            if (const auto value = SvgSyntax::StyleProperty(style.value(), name); value && *value != "inherit")
                return value;
        if (const pugi::xml_attribute a = node.attribute(name); a && std::string_view(a.value()) != "inherit")
            return std::string_view(a.value());
        return std::nullopt;
    }
    double LengthOf(const pugi::xml_node& node, const char* name, double reference, double otherwise)
    {
        const pugi::xml_attribute a = node.attribute(name);
        if (!a)
            return otherwise;
        if (const std::optional<double> v = SvgSyntax::Length(a.value(), reference))
            return *v;
        Skip({Says::kAttribute, {name, Quoted(a.value(), 20)}});
        return otherwise;
    }

    void Children(const pugi::xml_node& group, const Context& context, int depth, std::vector<Read>& out);
    void Element(const pugi::xml_node& node, const Context& outer, int depth, std::vector<Read>& out);
    // The element's outline in its own user space; nothing for one that draws nothing.
    std::optional<Path> Outline(const pugi::xml_node& node, std::string_view name);
    std::optional<Read> Painted(const Context& context, const Path& outline);
    std::optional<Paint> Gradient(const pugi::xml_node& gradient, const Context& context, const Path& outline,
                                  double alpha, Point& axisEnd);
    // A clip of one outline takes the place of the outline of the one shape (or square's four
    // wedges) it clips; any other clip is reported and the shapes read whole.
    void Clipped(const pugi::xml_node& clip, const Context& context, std::vector<Read>& inside);
    std::optional<Paint> Mask(const pugi::xml_node& mask, const Context& context, int depth);
    struct Stop {
        double offset;
        Rgba colour;
        double opacity;
    };
    // A gradient's own stops, read once however many shapes use it: offsets 0..1 in order.
    const std::vector<Stop>& StopsOf(const pugi::xml_node& gradient)
    {
        auto [at, fresh] = m_stops.try_emplace(gradient.internal_object());
        if (!fresh)
            return at->second;
        double last = 0;
        for (const pugi::xml_node& stop : gradient.children("stop")) {
            if (at->second.size() == kMaxStops) {
                Skip({Says::kStops, {std::to_string(kMaxStops)}});
                break;
            }
            last = std::max(last, SvgSyntax::Fraction(stop.attribute("offset").value()).value_or(0));
            at->second.push_back({last, SvgSyntax::Colour(Property(stop, "stop-color").value_or("black")).value_or(Rgba{}),
                                  SvgSyntax::Fraction(Property(stop, "stop-opacity").value_or("1")).value_or(1)});
        }
        return at->second;
    }
    pugi::xml_node Referenced(std::string_view id) const
    {
        const auto it = m_ids.find(std::string(id));
        return it == m_ids.end() ? pugi::xml_node() : it->second;
    }

    const SvgReader::Limits& m_limits;
    SvgReader::Drawing& m_drawing;
    std::map<std::string, pugi::xml_node, std::less<>> m_ids;
    std::map<const void*, std::vector<Stop>> m_stops;
    double m_viewWidth = 0, m_viewHeight = 0;
    std::size_t m_segments = 0;
};

// A first rectangle exactly over the page in one opaque colour is the page.
bool IsPage(const Read& read, double width, double height)
{
    if (!read.paint || read.paint->kind != Paint::Kind::Solid || read.paint->colours[0].a != 255 || read.levels)
        return false;
    const std::vector<Point>& points = read.outline.Points();
    const bool straight = std::none_of(read.outline.Verbs().begin(), read.outline.Verbs().end(),
                                       [](Path::Verb v) { return v == Path::Verb::Cubic; });
    bool corners[4] = {};
    for (const Point q : points) {
        if ((q.x != 0 && q.x != width) || (q.y != 0 && q.y != height))
            return false;
        corners[(q.x != 0) + 2 * (q.y != 0)] = true;
    }
    return straight && std::all_of(std::begin(corners), std::end(corners), [](bool c) { return c; });
}

// Four linear wedges about one centre, each along one half of two axes (+v, -v, +u, -u, as
// SvgWriter writes a square paint), with the same stops: the square paint they make.
std::optional<Paint> Square(const std::vector<Read>& wedges)
{
    if (wedges.size() != 4)
        return std::nullopt;
    for (const Read& w : wedges)
        if (!w.paint || w.paint->kind != Paint::Kind::Linear || w.levels ||
            w.paint->stops != wedges[0].paint->stops || w.paint->points[0].x != wedges[0].paint->points[0].x ||
            w.paint->points[0].y != wedges[0].paint->points[0].y)
            return std::nullopt;
    const Point c = wedges[0].paint->points[0];
    const auto opposite = [&c](Point a, Point b) {
        return std::abs(a.x + b.x - 2 * c.x) <= 1e-9 * (1 + std::abs(c.x)) &&
               std::abs(a.y + b.y - 2 * c.y) <= 1e-9 * (1 + std::abs(c.y));
    };
    if (!opposite(wedges[0].axisEnd, wedges[1].axisEnd) || !opposite(wedges[2].axisEnd, wedges[3].axisEnd))
        return std::nullopt;
    Paint square = *wedges[0].paint;
    square.kind = Paint::Kind::Square;
    square.points = {c, wedges[2].axisEnd, wedges[0].axisEnd};
    return square;
}

template <class Fill, class Transparency>
KestoKernel::RefPtr<KestoGDI::CFillGradient> Made(bool transparency)
{
    if (transparency)
        return KestoKernel::MakeRef<Transparency>();
    return KestoKernel::MakeRef<Fill>();
}

// A paint in the renderer's terms as a fill (or transparency) of this model: a transparency's
// colours are levels in red.
KestoKernel::RefPtr<const CFill> FillOf(const Paint& paint, bool transparency)
{
    const auto colour = [transparency](const Rgba& c) -> std::unique_ptr<KestoGDI::CColour> {
        if (transparency)
            return std::make_unique<KestoGDI::CMonoColour>(c.r);
        return std::make_unique<KestoGDI::CRGBColour>(KestoPlatform::RGB(c.r, c.g, c.b), nullptr, short(0), short(c.a));
    };
    if (paint.kind == Paint::Kind::Solid) {
        if (transparency) {
            auto flat = KestoKernel::MakeRef<KestoGDI::CTransparencyFlat>();
            flat->SetColour(*colour(paint.colours[0]));
            return flat;
        }
        return KestoKernel::MakeRef<KestoGDI::CFillSolid>(*colour(paint.colours[0]), true);
    }
    KestoKernel::RefPtr<KestoGDI::CFillGradient> fill;
    switch (paint.kind) {
    case Paint::Kind::Linear:
        fill = Made<KestoGDI::CFillLinear, KestoGDI::CTransparencyLinear>(transparency);
        break;
    case Paint::Kind::Radial:
        fill = Made<KestoGDI::CFillRadial, KestoGDI::CTransparencyRadial>(transparency);
        break;
    case Paint::Kind::Elliptical:
        fill = Made<KestoGDI::CFillEllipse, KestoGDI::CTransparencyEllipse>(transparency);
        break;
    case Paint::Kind::Square:
        fill = Made<KestoGDI::CFillSquare, KestoGDI::CTransparencySquare>(transparency);
        break;
    default: return nullptr;
    }
    std::vector<K2DDblPoint> points;
    for (const Point p : paint.points)
        points.emplace_back(p.x, p.y);
    KestoGDI::ColourIntPairs stops;
    for (const KestoRaster::RampStop& s : paint.stops)
        stops.Add(*colour(s.colour), static_cast<int>(std::lround(std::clamp(s.position, 0.0, 10000.0))));
    if (!fill->SetControlPoints(points) || !fill->SetColourIntPairs(stops))
        return nullptr;
    return fill;
}

// The grey level a mask's colour lets through, 0..255, by its luminance.
int MaskLevel(const Rgba& c)
{
    return static_cast<int>(std::lround((0.2125 * c.r + 0.7154 * c.g + 0.0721 * c.b) * c.a / 255));
}

// The path's bounds (of the curve, not its controls); nothing for an empty path.
std::optional<std::array<double, 4>> Bounds(const Path& path)
{
    std::array<double, 4> box{std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity(),
                              -std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};
    for (const std::vector<Point>& piece : path.Flatten({}, 1e-3))
        for (const Point p : piece)
            box = {std::min(box[0], p.x), std::min(box[1], p.y), std::max(box[2], p.x), std::max(box[3], p.y)};
    if (!(box[2] >= box[0]))
        return std::nullopt;
    return box;
}

void Reader::Document(const pugi::xml_document& document)
{
    const pugi::xml_node root = document.document_element();
    if (LocalName(root) != "svg")
        throw Refused{{Says::kNotSvg, {Quoted(root.name(), 40)}}};
    // Every id first: paints and clips may be defined after their use.
    std::vector<pugi::xml_node> pending{root};
    while (!pending.empty()) {
        const pugi::xml_node node = pending.back();
        pending.pop_back();
        if (const pugi::xml_attribute id = node.attribute("id"))
            m_ids.emplace(id.value(), node);
        for (const pugi::xml_node& child : node.children())
            if (child.type() == pugi::node_element)
                pending.push_back(child);
    }

    // The page: its size in pixels, and the viewBox that user units are measured in.
    double viewBox[4] = {0, 0, 0, 0};
    bool hasViewBox = false;
    if (const pugi::xml_attribute vb = root.attribute("viewBox")) {
        std::string numbers = vb.value();
        std::replace(numbers.begin(), numbers.end(), ',', ' ');
        const Path probe = SvgSyntax::Path("M" + numbers, {}, 2).path; // two pairs of numbers
        if (probe.Points().size() == 2) {
            viewBox[0] = probe.Points()[0].x, viewBox[1] = probe.Points()[0].y;
            viewBox[2] = probe.Points()[1].x, viewBox[3] = probe.Points()[1].y;
            hasViewBox = viewBox[2] > 0 && viewBox[3] > 0;
        }
        if (!hasViewBox)
            Skip({Says::kViewBox, {Quoted(vb.value(), 40)}});
    }
    const double width = LengthOf(root, "width", hasViewBox ? viewBox[2] : 300, hasViewBox ? viewBox[2] : 300);
    const double height = LengthOf(root, "height", hasViewBox ? viewBox[3] : 150, hasViewBox ? viewBox[3] : 150);
    if (!(width >= 1 && height >= 1 && width <= m_limits.page && height <= m_limits.page))
        throw Refused{{Says::kPageSize, {SvgNumber(width), SvgNumber(height), SvgNumber(m_limits.page)}}};
    m_drawing.width = width;
    m_drawing.height = height;
    Context context;
    m_viewWidth = width, m_viewHeight = height;
    if (hasViewBox) {
        // The viewBox fits the page, centred, its aspect kept (SVG's default).
        const double scale = std::min(width / viewBox[2], height / viewBox[3]);
        context.toDrawing = K2DLtGeneral(scale, 0, 0, scale, (width - viewBox[2] * scale) / 2 - viewBox[0] * scale,
                                         (height - viewBox[3] * scale) / 2 - viewBox[1] * scale);
        m_viewWidth = viewBox[2], m_viewHeight = viewBox[3];
    }
    std::vector<Read> shapes;
    Children(root, context, 0, shapes);

    for (std::size_t i = 0; i < shapes.size(); ++i) {
        Read& read = shapes[i];
        if (i == 0 && IsPage(read, width, height)) {
            m_drawing.page = read.paint->colours[0];
            continue;
        }
        SvgReader::Shape shape;
        shape.outline = std::move(read.outline);
        shape.fill = FillOf(*read.paint, false);
        if (read.levels)
            shape.transparency = FillOf(*read.levels, true);
        if (!shape.fill || (read.levels && !shape.transparency)) {
            Skip({Says::kStopCount, {}});
            continue;
        }
        m_drawing.shapes.push_back(std::move(shape));
    }
}

void Reader::Children(const pugi::xml_node& group, const Context& context, int depth, std::vector<Read>& out)
{
    if (depth >= m_limits.depth) {
        Skip({Says::kDepth, {std::to_string(m_limits.depth)}});
        return;
    }
    for (const pugi::xml_node& child : group.children())
        if (child.type() == pugi::node_element)
            Element(child, context, depth + 1, out);
}

void Reader::Element(const pugi::xml_node& node, const Context& outer, int depth, std::vector<Read>& out)
{
    const std::string_view name = LocalName(node);
    static constexpr std::string_view kQuiet[] = {"defs", "title", "desc", "metadata", "linearGradient",
                                                 "radialGradient", "clipPath", "mask", "stop"};
    if (std::find(std::begin(kQuiet), std::end(kQuiet), name) != std::end(kQuiet))
        return; // definitions are read where they are used; the rest is not drawing
    static constexpr std::string_view kShapes[] = {"rect", "circle", "ellipse", "path", "polygon", "polyline"};
    const bool group = name == "g" || name == "a";
    const bool shape = std::find(std::begin(kShapes), std::end(kShapes), name) != std::end(kShapes);
    if (!group && !shape) {
        Skip({Says::kElement, {Quoted(name, 40)}});
        return;
    }
    if (Property(node, "display") == "none" || Property(node, "visibility") == "hidden")
        return;
    Context context = outer;
    if (const pugi::xml_attribute t = node.attribute("transform")) {
        const std::optional<K2DLtGeneral> transform = SvgSyntax::Transform(t.value());
        if (!transform) {
            Skip({Says::kTransform, {Quoted(t.value(), 40)}});
            return;
        }
        context.toDrawing = transform->Then(outer.toDrawing);
    }
    if (const auto fill = Property(node, "fill"))
        context.fill = *fill;
    if (const auto v = Property(node, "fill-opacity"))
        context.fillOpacity = SvgSyntax::Fraction(*v).value_or(1);
    if (const auto v = Property(node, "opacity"))
        context.opacity *= SvgSyntax::Fraction(*v).value_or(1);
    if (const auto v = Property(node, "stroke"); v && *v != "none")
        Skip({Says::kStroke, {}});
    if (Property(node, "filter"))
        Skip({Says::kFilter, {}});
    if (Property(node, "fill-rule") == "evenodd")
        Skip({Says::kEvenOdd, {}});

    std::vector<Read> inside;
    if (group) {
        Children(node, context, depth, inside);
    } else if (std::optional<Path> outline = Outline(node, name)) {
        if (std::optional<Read> read = Painted(context, *outline))
            inside.push_back(std::move(*read));
    }
    if (const auto clip = Property(node, "clip-path"); clip && *clip != "none") {
        const pugi::xml_node clipPath = Referenced(SvgSyntax::UrlId(*clip).value_or(""));
        Clipped(clipPath, context, inside);
    }
    if (const auto mask = Property(node, "mask"); mask && *mask != "none") {
        const pugi::xml_node maskNode = Referenced(SvgSyntax::UrlId(*mask).value_or(""));
        std::optional<Paint> levels = inside.size() == 1 ? Mask(maskNode, context, depth) : std::nullopt;
        if (levels)
            inside[0].levels = std::move(levels);
        else
            Skip({Says::kMasks, {}});
    }
    for (Read& read : inside) {
        if (m_drawing.shapes.size() + out.size() >= m_limits.shapes)
            throw Refused{{Says::kShapes, {std::to_string(m_limits.shapes)}}};
        out.push_back(std::move(read));
    }
}

std::optional<Path> Reader::Outline(const pugi::xml_node& node, std::string_view name)
{
    const double diagonal = std::hypot(m_viewWidth, m_viewHeight) / std::sqrt(2.0);
    const auto length = [&](const char* attribute, double reference) { return LengthOf(node, attribute, reference, 0); };
    std::string data;
    Path path;
    if (name == "rect") {
        const double x = length("x", m_viewWidth), y = length("y", m_viewHeight);
        const double w = length("width", m_viewWidth), h = length("height", m_viewHeight);
        if (!(w > 0 && h > 0))
            return std::nullopt;
        double rx = length("rx", m_viewWidth), ry = length("ry", m_viewHeight);
        if (!node.attribute("rx"))
            rx = ry;
        if (!node.attribute("ry"))
            ry = rx;
        rx = std::clamp(rx, 0.0, w / 2), ry = std::clamp(ry, 0.0, h / 2);
        if (rx > 0 && ry > 0) {
            const std::string a = "A" + SvgNumber(rx) + " " + SvgNumber(ry) + " 0 0 1 ";
            data = "M" + SvgNumber(x + rx) + " " + SvgNumber(y) + "H" + SvgNumber(x + w - rx) + a + SvgNumber(x + w) +
                   " " + SvgNumber(y + ry) + "V" + SvgNumber(y + h - ry) + a + SvgNumber(x + w - rx) + " " +
                   SvgNumber(y + h) + "H" + SvgNumber(x + rx) + a + SvgNumber(x) + " " + SvgNumber(y + h - ry) + "V" +
                   SvgNumber(y + ry) + a + SvgNumber(x + rx) + " " + SvgNumber(y) + "Z";
        } else {
            path = Path::Rectangle({x, y}, {x + w, y + h});
        }
    } else if (name == "circle" || name == "ellipse") {
        const bool circle = name == "circle";
        const double rx = circle ? length("r", diagonal) : length("rx", m_viewWidth);
        const double ry = circle ? rx : length("ry", m_viewHeight);
        if (!(rx > 0 && ry > 0))
            return std::nullopt;
        path = Path::Ellipse({length("cx", m_viewWidth), length("cy", m_viewHeight)}, rx, ry);
    } else if (name == "polygon" || name == "polyline") {
        data = std::string("M") + node.attribute("points").value() + (name == "polygon" ? "Z" : "");
    } else {
        data = node.attribute("d").value();
    }
    if (!data.empty()) {
        const std::size_t room = std::min(m_limits.pathSegments, m_limits.segments - m_segments);
        SvgSyntax::PathData read = SvgSyntax::Path(data, {}, room);
        if (read.tooMany && room == m_limits.pathSegments)
            throw Refused{{Says::kPathSegments, {std::to_string(m_limits.pathSegments)}}};
        if (read.tooMany)
            throw Refused{{Says::kFileSegments, {std::to_string(m_limits.segments)}}};
        path = std::move(read.path);
    }
    m_segments += path.Verbs().size();
    if (m_segments > m_limits.segments)
        throw Refused{{Says::kFileSegments, {std::to_string(m_limits.segments)}}};
    if (path.IsEmpty())
        return std::nullopt;
    return path;
}

std::optional<Read> Reader::Painted(const Context& context, const Path& outline)
{
    Read read;
    read.outline = Mapped(outline, context.toDrawing);
    const double limit = Kesto2D::CoordinateLimit / 2.0;
    for (const Point p : read.outline.Points()) {
        if (!(std::abs(p.x) <= limit && std::abs(p.y) <= limit)) {
            Skip({Says::kOutOfRange, {}});
            return std::nullopt;
        }
    }
    const double alpha = context.fillOpacity * context.opacity;
    std::string_view fill = context.fill;
    if (const std::optional<std::string_view> id = SvgSyntax::UrlId(fill)) {
        const pugi::xml_node paint = Referenced(*id);
        const std::string_view kind = LocalName(paint);
        if (kind == "linearGradient" || kind == "radialGradient") {
            read.paint = Gradient(paint, context, outline, alpha, read.axisEnd);
            return read.paint ? std::optional(std::move(read)) : std::nullopt;
        }
        Skip(paint ? Message{Says::kPaintElement, {Quoted(kind, 40)}}
                   : Message{Says::kPaintReference, {Quoted(*id, 40)}});
        fill = fill.substr(std::min(fill.find(')') + 1, fill.size())); // the fallback colour, if any
    }
    if (fill.find_first_not_of(" \t\n\r") == std::string_view::npos || fill == "none")
        return std::nullopt;
    const std::optional<Rgba> colour = SvgSyntax::Colour(fill);
    if (!colour) {
        Skip({Says::kFill, {Quoted(fill, 40)}});
        return std::nullopt;
    }
    read.paint.emplace();
    read.paint->colours = {*colour};
    read.paint->colours[0].a = static_cast<std::uint8_t>(std::lround(255 * alpha));
    return read;
}

std::optional<Paint> Reader::Gradient(const pugi::xml_node& gradient, const Context& context, const Path& outline,
                                      double alpha, Point& axisEnd)
{
    // The chain of gradients this one takes what it does not say from.
    std::vector<pugi::xml_node> chain{gradient};
    for (pugi::xml_node at = gradient; chain.size() < 16;) {
        const char* href = at.attribute("href") ? at.attribute("href").value() : at.attribute("xlink:href").value();
        if (href[0] != '#')
            break;
        at = Referenced(href + 1);
        const std::string_view kind = LocalName(at);
        if ((kind != "linearGradient" && kind != "radialGradient") ||
            std::find(chain.begin(), chain.end(), at) != chain.end())
            break;
        chain.push_back(at);
    }
    const auto attribute = [&chain](const char* name) -> std::optional<std::string_view> {
        for (const pugi::xml_node& g : chain)
            if (const pugi::xml_attribute a = g.attribute(name))
                return std::string_view(a.value());
        return std::nullopt;
    };
    Paint paint;
    for (const pugi::xml_node& g : chain) {
        if (!g.child("stop"))
            continue;
        for (const Stop& stop : StopsOf(g)) {
            Rgba colour = stop.colour;
            colour.a = static_cast<std::uint8_t>(std::lround(255 * stop.opacity * alpha));
            paint.stops.push_back({stop.offset * 10000, colour});
        }
        break;
    }
    if (paint.stops.empty())
        return std::nullopt; // a gradient without stops paints nothing
    if (const auto spread = attribute("spreadMethod"); spread && *spread != "pad")
        Skip({Says::kSpread, {Quoted(*spread, 20)}});

    const bool boxUnits = attribute("gradientUnits").value_or("objectBoundingBox") != "userSpaceOnUse";
    K2DLtGeneral toDrawing = context.toDrawing;
    if (boxUnits) {
        const std::optional<std::array<double, 4>> box = Bounds(outline);
        if (!box || !((*box)[2] > (*box)[0]) || !((*box)[3] > (*box)[1]))
            return std::nullopt; // no box to measure the gradient in
        toDrawing = K2DLtGeneral((*box)[2] - (*box)[0], 0, 0, (*box)[3] - (*box)[1], (*box)[0], (*box)[1]).Then(toDrawing);
    }
    const std::optional<std::string_view> transformText = attribute("gradientTransform");
    if (transformText) {
        if (const std::optional<K2DLtGeneral> t = SvgSyntax::Transform(*transformText))
            toDrawing = t->Then(toDrawing);
        else
            Skip({Says::kGradientTransform, {Quoted(*transformText, 40)}});
    }
    const double diagonal = std::hypot(m_viewWidth, m_viewHeight) / std::sqrt(2.0);
    const auto coordinate = [&](const char* name, double reference, const char* otherwise) {
        const std::string_view text = attribute(name).value_or(otherwise);
        const std::optional<double> v = boxUnits ? SvgSyntax::Length(text, 1) : SvgSyntax::Length(text, reference);
        return v.value_or(0);
    };
    const auto solid = [&paint] {
        paint.kind = Paint::Kind::Solid;
        paint.colours = {paint.stops.back().colour};
        paint.stops.clear();
        return paint;
    };
    if (paint.stops.size() == 1)
        return solid();
    const auto at = [&toDrawing](double x, double y) { return Apply(toDrawing, {x, y}); };
    if (LocalName(gradient) == "linearGradient") {
        const double x1 = coordinate("x1", m_viewWidth, "0%"), y1 = coordinate("y1", m_viewHeight, "0%");
        const double x2 = coordinate("x2", m_viewWidth, "100%"), y2 = coordinate("y2", m_viewHeight, "0%");
        if (x1 == x2 && y1 == y2)
            return solid();
        // The stripes run across the axis in the gradient's own space; drawn through a skew they
        // no longer cross the mapped axis square, so the end is put where the stripe through the
        // axis's end crosses the line square to the mapped stripes.
        const Point s = at(x1, y1);
        axisEnd = at(x2, y2);
        const Point across = at(x1 - (y2 - y1), y1 + (x2 - x1));
        const double ux = across.x - s.x, uy = across.y - s.y;
        const double nx = -uy, ny = ux, nn = nx * nx + ny * ny;
        if (!(nn > 0))
            return solid();
        const double reach = ((axisEnd.x - s.x) * nx + (axisEnd.y - s.y) * ny) / nn;
        paint.kind = Paint::Kind::Linear;
        paint.points = {s, {s.x + reach * nx, s.y + reach * ny}};
        return paint;
    }
    const double cx = coordinate("cx", m_viewWidth, "50%"), cy = coordinate("cy", m_viewHeight, "50%");
    const double r = coordinate("r", diagonal, "50%");
    if ((attribute("fx") && coordinate("fx", m_viewWidth, "50%") != cx) ||
        (attribute("fy") && coordinate("fy", m_viewHeight, "50%") != cy))
        Skip({Says::kFocalPoint, {}});
    if (!(r > 0))
        return solid();
    const double m11 = toDrawing.GetM11(), m12 = toDrawing.GetM12(), m21 = toDrawing.GetM21(), m22 = toDrawing.GetM22();
    const bool similar = std::abs(m11 - m22) <= 1e-12 * std::abs(m11) && std::abs(m12 + m21) <= 1e-12 * std::abs(m11);
    paint.points = {at(cx, cy), at(cx + r, cy)};
    if (similar && !transformText && !boxUnits) {
        paint.kind = Paint::Kind::Radial;
    } else {
        paint.kind = Paint::Kind::Elliptical;
        paint.points.push_back(at(cx, cy + r));
    }
    return paint;
}

void Reader::Clipped(const pugi::xml_node& clip, const Context& context, std::vector<Read>& inside)
{
    // One outline, in the clipped element's space.
    std::optional<Path> outline;
    int outlines = 0;
    if (LocalName(clip) == "clipPath" && std::string_view(clip.attribute("clipPathUnits").value()) != "objectBoundingBox") {
        for (const pugi::xml_node& child : clip.children()) {
            if (child.type() != pugi::node_element)
                continue;
            const std::string_view name = LocalName(child);
            ++outlines;
            K2DLtGeneral toDrawing = context.toDrawing;
            if (const pugi::xml_attribute t = child.attribute("transform")) {
                const std::optional<K2DLtGeneral> transform = SvgSyntax::Transform(t.value());
                toDrawing = transform ? transform->Then(toDrawing) : K2DLtGeneral();
                if (!transform)
                    ++outlines;
            }
            if (name != "title" && name != "desc")
                if (std::optional<Path> own = Outline(child, name))
                    outline = Mapped(*own, toDrawing);
        }
    }
    std::optional<Paint> square = Square(inside);
    if (!outline || outlines != 1 || (inside.size() != 1 && !square)) {
        Skip({Says::kClipPath, {}});
        return;
    }
    if (square) {
        inside.resize(1);
        inside[0].paint = std::move(square);
    }
    inside[0].outline = std::move(*outline);
}

std::optional<Paint> Reader::Mask(const pugi::xml_node& mask, const Context& context, int depth)
{
    if (LocalName(mask) != "mask" || std::string_view(mask.attribute("maskContentUnits").value()) == "objectBoundingBox")
        return std::nullopt;
    Context inner;
    inner.toDrawing = context.toDrawing;
    std::vector<Read> reads;
    Children(mask, inner, depth, reads);
    if (std::optional<Paint> square = Square(reads)) {
        reads.resize(1);
        reads[0].paint = std::move(square);
    }
    if (reads.size() != 1 || reads[0].levels)
        return std::nullopt;
    // What the mask lets through becomes a level: 0 where all shows, 255 where nothing does.
    Paint levels = *reads[0].paint;
    levels.transparency = true;
    for (Rgba& c : levels.colours)
        c = {static_cast<std::uint8_t>(255 - MaskLevel(c)), 0, 0, 255};
    for (KestoRaster::RampStop& s : levels.stops)
        s.colour = {static_cast<std::uint8_t>(255 - MaskLevel(s.colour)), 0, 0, 255};
    return levels;
}

} // namespace

SvgReader::Result SvgReader::Read(std::string_view text, const Limits& limits)
{
    Result result;
    if (text.size() > limits.bytes) {
        result.error = {Says::kTooLarge, {std::to_string(text.size() >> 20), std::to_string(limits.bytes >> 20)}};
        return result;
    }
    pugi::xml_document document;
    // Entities are never expanded: a document type is read only to refuse declarations.
    const pugi::xml_parse_result parsed =
        document.load_buffer(text.data(), text.size(), pugi::parse_default | pugi::parse_doctype, pugi::encoding_utf8);
    if (!parsed) {
        result.error = {Says::kNotXml, {parsed.description(), std::to_string(parsed.offset)}};
        return result;
    }
    for (const pugi::xml_node& node : document.children()) {
        if (node.type() == pugi::node_doctype && std::string_view(node.value()).find("<!ENTITY") != std::string_view::npos) {
            result.error = {Says::kEntities, {}};
            return result;
        }
    }
    try {
        Drawing drawing;
        Reader(limits, drawing).Document(document);
        result.drawing = std::move(drawing);
    } catch (Refused& refused) {
        result.error = std::move(refused.message);
    }
    return result;
}

std::string SvgReader::Message::Text(std::string_view into) const
{
    std::string text;
    for (std::size_t i = 0; i < into.size(); ++i) {
        const char c = into[i];
        const std::size_t n = i + 1 < into.size() ? static_cast<std::size_t>(into[i + 1] - '1') : arguments.size();
        if (c == '%' && n < arguments.size()) {
            text += arguments[n];
            ++i;
        } else {
            text += c;
        }
    }
    return text;
}

std::span<const std::string_view> SvgReader::Patterns()
{
    return kPatterns;
}

} // namespace KestoTool
