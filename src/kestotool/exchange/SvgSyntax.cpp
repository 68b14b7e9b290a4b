#include "kestotool/exchange/SvgSyntax_p.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <numbers>
#include <string>

namespace KestoTool::SvgSyntax {

using Kesto2D::K2DLtGeneral;
using KestoRaster::Point;
using KestoRaster::Rgba;

namespace {

bool IsSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}

std::string_view Trimmed(std::string_view text)
{
    while (!text.empty() && IsSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

// Reads the longest number at the front of text ("1.5.5" reads 1.5, "1-2" reads 1), moving
// past it; false, moving nothing, where no finite number starts.
bool TakeNumber(std::string_view& text, double& value)
{
    std::size_t at = 0;
    const auto digits = [&] {
        const std::size_t from = at;
        while (at < text.size() && text[at] >= '0' && text[at] <= '9')
            ++at;
        return at > from;
    };
    if (at < text.size() && (text[at] == '+' || text[at] == '-'))
        ++at;
    const std::size_t mantissa = at;
    bool any = digits();
    if (at < text.size() && text[at] == '.') {
        ++at;
        any = digits() || any;
    }
    if (!any)
        return false;
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        std::size_t back = at++;
        if (at < text.size() && (text[at] == '+' || text[at] == '-'))
            ++at;
        if (!digits())
            at = back; // "2em": the number is 2
    }
    // from_chars takes no plus sign; the sign is read here.
    const bool negative = text[0] == '-';
    const auto [end, error] = std::from_chars(text.data() + mantissa, text.data() + at, value);
    if (error != std::errc() || end != text.data() + at || !std::isfinite(value))
        return false;
    if (negative)
        value = -value;
    text.remove_prefix(at);
    return true;
}

// Whitespace, and at most one comma with whitespace either side.
void SkipSeparator(std::string_view& text)
{
    while (!text.empty() && IsSpace(text.front()))
        text.remove_prefix(1);
    if (!text.empty() && text.front() == ',') {
        text.remove_prefix(1);
        while (!text.empty() && IsSpace(text.front()))
            text.remove_prefix(1);
    }
}

bool StartsNumber(std::string_view text)
{
    return !text.empty() && (std::isdigit(static_cast<unsigned char>(text.front())) || text.front() == '.' ||
                             text.front() == '-' || text.front() == '+');
}

bool EqualsNoCase(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return std::tolower(static_cast<unsigned char>(x)) == std::tolower(static_cast<unsigned char>(y));
           });
}

struct Keyword {
    std::string_view name;
    std::uint32_t rgb;
};
// The colour keywords designers' files use most; others are reported as not read.
constexpr std::array kKeywords{
    Keyword{"black", 0x000000},  Keyword{"white", 0xFFFFFF},   Keyword{"red", 0xFF0000},
    Keyword{"green", 0x008000},  Keyword{"blue", 0x0000FF},    Keyword{"yellow", 0xFFFF00},
    Keyword{"cyan", 0x00FFFF},   Keyword{"aqua", 0x00FFFF},    Keyword{"magenta", 0xFF00FF},
    Keyword{"fuchsia", 0xFF00FF}, Keyword{"gray", 0x808080},   Keyword{"grey", 0x808080},
    Keyword{"silver", 0xC0C0C0}, Keyword{"maroon", 0x800000},  Keyword{"olive", 0x808000},
    Keyword{"lime", 0x00FF00},   Keyword{"teal", 0x008080},    Keyword{"navy", 0x000080},
    Keyword{"purple", 0x800080}, Keyword{"orange", 0xFFA500},  Keyword{"pink", 0xFFC0CB},
    Keyword{"brown", 0xA52A2A},  Keyword{"gold", 0xFFD700},    Keyword{"darkgray", 0xA9A9A9},
    Keyword{"darkgrey", 0xA9A9A9}, Keyword{"lightgray", 0xD3D3D3}, Keyword{"lightgrey", 0xD3D3D3},
    Keyword{"dimgray", 0x696969}, Keyword{"dimgrey", 0x696969}, Keyword{"whitesmoke", 0xF5F5F5},
};

int HexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

// The points of one arc from p to end, as cubics of at most a quarter turn (the centre form of
// an SVG arc: radii grown when too small to reach, the flags choosing among four arcs).
void Arc(KestoRaster::Path& out, const K2DLtGeneral& m, Point p, double rx, double ry, double degrees, bool large,
         bool sweep, Point end)
{
    const auto user = [&m](double x, double y) {
        const Kesto2D::K2DDblPoint q = m.ApplyTo(Kesto2D::K2DDblPoint(x, y));
        return Point{q.x, q.y};
    };
    if (p.x == end.x && p.y == end.y)
        return;
    rx = std::abs(rx);
    ry = std::abs(ry);
    if (rx == 0 || ry == 0) {
        out.LineTo(user(end.x, end.y));
        return;
    }
    const double phi = degrees * std::numbers::pi / 180, cs = std::cos(phi), sn = std::sin(phi);
    const double hx = (p.x - end.x) / 2, hy = (p.y - end.y) / 2;
    const double x1 = cs * hx + sn * hy, y1 = -sn * hx + cs * hy;
    const double reach = x1 * x1 / (rx * rx) + y1 * y1 / (ry * ry);
    if (reach > 1) {
        rx *= std::sqrt(reach);
        ry *= std::sqrt(reach);
    }
    const double num = rx * rx * ry * ry - rx * rx * y1 * y1 - ry * ry * x1 * x1;
    const double den = rx * rx * y1 * y1 + ry * ry * x1 * x1;
    const double coef = (large != sweep ? 1 : -1) * std::sqrt(std::max(0.0, num / den));
    const double cx1 = coef * rx * y1 / ry, cy1 = -coef * ry * x1 / rx;
    const double cx = cs * cx1 - sn * cy1 + (p.x + end.x) / 2, cy = sn * cx1 + cs * cy1 + (p.y + end.y) / 2;
    const double a0 = std::atan2((y1 - cy1) / ry, (x1 - cx1) / rx);
    double span = std::atan2((-y1 - cy1) / ry, (-x1 - cx1) / rx) - a0;
    if (sweep && span < 0)
        span += 2 * std::numbers::pi;
    else if (!sweep && span > 0)
        span -= 2 * std::numbers::pi;
    if (!std::isfinite(cx) || !std::isfinite(cy) || !std::isfinite(span) || !std::isfinite(rx * ry)) {
        out.LineTo(user(end.x, end.y)); // radii or ends too large to place an arc: its chord
        return;
    }
    const int pieces = std::clamp(static_cast<int>(std::ceil(std::abs(span) / (std::numbers::pi / 2) - 1e-9)), 1, 4);
    const double step = span / pieces, k = 4.0 / 3 * std::tan(step / 4);
    const auto on = [&](double x, double y) { // the unit circle's point on the ellipse
        return user(cx + rx * cs * x - ry * sn * y, cy + rx * sn * x + ry * cs * y);
    };
    for (int i = 0; i < pieces; ++i) {
        const double a = a0 + step * i, b = a + step;
        const double ca = std::cos(a), sa = std::sin(a), cb = std::cos(b), sb = std::sin(b);
        out.CubicTo(on(ca - k * sa, sa + k * ca), on(cb + k * sb, sb - k * cb),
                    i + 1 == pieces ? user(end.x, end.y) : on(cb, sb));
    }
}

} // namespace

std::optional<double> Number(std::string_view text)
{
    text = Trimmed(text);
    double value = 0;
    if (!TakeNumber(text, value) || !text.empty())
        return std::nullopt;
    return value;
}

std::optional<double> Length(std::string_view text, double reference)
{
    text = Trimmed(text);
    double value = 0;
    if (!TakeNumber(text, value))
        return std::nullopt;
    struct Unit {
        std::string_view name;
        double scale;
    };
    static constexpr std::array kUnits{Unit{"", 1},        Unit{"px", 1},        Unit{"pt", 4.0 / 3},
                                       Unit{"pc", 16},     Unit{"mm", 96 / 25.4}, Unit{"cm", 96 / 2.54},
                                       Unit{"in", 96},     Unit{"%", 0}};
    for (const Unit& unit : kUnits) {
        if (EqualsNoCase(text, unit.name)) {
            const double length = unit.name == "%" ? value / 100 * reference : value * unit.scale;
            return std::isfinite(length) ? std::optional(length) : std::nullopt;
        }
    }
    return std::nullopt;
}

std::optional<double> Fraction(std::string_view text)
{
    text = Trimmed(text);
    const bool percent = !text.empty() && text.back() == '%';
    if (percent)
        text.remove_suffix(1);
    const std::optional<double> value = Number(text);
    if (!value)
        return std::nullopt;
    return std::clamp(percent ? *value / 100 : *value, 0.0, 1.0);
}

std::optional<Rgba> Colour(std::string_view text)
{
    text = Trimmed(text);
    if (text.size() == 4 || text.size() == 7) {
        if (text.front() == '#') {
            int v[6] = {};
            for (std::size_t i = 1; i < text.size(); ++i)
                if ((v[i - 1] = HexDigit(text[i])) < 0)
                    return std::nullopt;
            const auto channel = [&](int i) {
                return static_cast<std::uint8_t>(text.size() == 4 ? v[i] * 17 : v[2 * i] * 16 + v[2 * i + 1]);
            };
            return Rgba{channel(0), channel(1), channel(2), 255};
        }
    }
    if (text.size() > 5 && EqualsNoCase(text.substr(0, 4), "rgb(") && text.back() == ')') {
        std::string_view rest = text.substr(4, text.size() - 5);
        std::uint8_t c[3];
        for (int i = 0; i < 3; ++i) {
            while (!rest.empty() && IsSpace(rest.front()))
                rest.remove_prefix(1);
            double value = 0;
            if (!TakeNumber(rest, value))
                return std::nullopt;
            if (!rest.empty() && rest.front() == '%') {
                value = value * 255 / 100;
                rest.remove_prefix(1);
            }
            c[i] = static_cast<std::uint8_t>(std::lround(std::clamp(value, 0.0, 255.0)));
            if (i < 2)
                SkipSeparator(rest);
        }
        if (!Trimmed(rest).empty())
            return std::nullopt;
        return Rgba{c[0], c[1], c[2], 255};
    }
    for (const Keyword& k : kKeywords)
        if (EqualsNoCase(text, k.name))
            return Rgba{static_cast<std::uint8_t>(k.rgb >> 16), static_cast<std::uint8_t>(k.rgb >> 8 & 0xFF),
                        static_cast<std::uint8_t>(k.rgb & 0xFF), 255};
    return std::nullopt;
}

std::optional<K2DLtGeneral> Transform(std::string_view text)
{
    K2DLtGeneral all;
    text = Trimmed(text);
    while (!text.empty()) {
        const std::size_t open = text.find('(');
        const std::size_t close = text.find(')');
        if (open == std::string_view::npos || close == std::string_view::npos || close < open)
            return std::nullopt;
        const std::string_view name = Trimmed(text.substr(0, open));
        std::string_view args = text.substr(open + 1, close - open - 1);
        double v[6];
        int n = 0;
        SkipSeparator(args);
        while (!args.empty()) {
            if (n == 6 || !TakeNumber(args, v[n++]))
                return std::nullopt;
            SkipSeparator(args);
        }
        const double pi = std::numbers::pi;
        K2DLtGeneral step;
        if (name == "matrix" && n == 6) {
            step = K2DLtGeneral(v[0], v[1], v[2], v[3], v[4], v[5]);
        } else if (name == "translate" && (n == 1 || n == 2)) {
            step = K2DLtGeneral(1, 0, 0, 1, v[0], n == 2 ? v[1] : 0);
        } else if (name == "scale" && (n == 1 || n == 2)) {
            step = K2DLtGeneral(v[0], 0, 0, n == 2 ? v[1] : v[0], 0, 0);
        } else if (name == "rotate" && (n == 1 || n == 3)) {
            const double a = v[0] * pi / 180, c = std::cos(a), s = std::sin(a);
            const double cx = n == 3 ? v[1] : 0, cy = n == 3 ? v[2] : 0;
            step = K2DLtGeneral(c, s, -s, c, cx - c * cx + s * cy, cy - s * cx - c * cy);
        } else if (name == "skewX" && n == 1) {
            step = K2DLtGeneral(1, 0, std::tan(v[0] * pi / 180), 1, 0, 0);
        } else if (name == "skewY" && n == 1) {
            step = K2DLtGeneral(1, std::tan(v[0] * pi / 180), 0, 1, 0, 0);
        } else {
            return std::nullopt;
        }
        // "a b" means a applied to what b has already mapped: b first.
        all = step.Then(all);
        text.remove_prefix(close + 1);
        SkipSeparator(text);
    }
    const double m[] = {all.GetM11(), all.GetM12(), all.GetM21(), all.GetM22(), all.GetTranslation().dx,
                        all.GetTranslation().dy};
    if (!std::all_of(std::begin(m), std::end(m), [](double x) { return std::isfinite(x); }))
        return std::nullopt;
    return all;
}

PathData Path(std::string_view data, const K2DLtGeneral& toUser, std::size_t maxSegments)
{
    PathData out;
    KestoRaster::Path& path = out.path;
    const auto user = [&toUser](Point p) {
        const Kesto2D::K2DDblPoint q = toUser.ApplyTo(Kesto2D::K2DDblPoint(p.x, p.y));
        return Point{q.x, q.y};
    };
    Point current, start, lastCubic, lastQuad;
    char previous = 0;
    bool open = false; // a piece is under way (after a move, before a close)
    std::size_t segments = 0;
    char command = 0;
    const auto flag = [&data](bool& value) {
        SkipSeparator(data);
        if (data.empty() || (data.front() != '0' && data.front() != '1'))
            return false;
        value = data.front() == '1';
        data.remove_prefix(1);
        return true;
    };
    const auto numbers = [&data](double* v, int n) {
        for (int i = 0; i < n; ++i) {
            SkipSeparator(data);
            if (!TakeNumber(data, v[i]))
                return false;
        }
        return true;
    };
    for (;;) {
        SkipSeparator(data);
        if (data.empty())
            break;
        if (std::isalpha(static_cast<unsigned char>(data.front()))) {
            command = data.front();
            data.remove_prefix(1);
        } else if (!command || command == 'z' || command == 'Z' || !StartsNumber(data)) {
            break; // arguments without a command
        }
        if (++segments > maxSegments) {
            out.tooMany = true;
            break;
        }
        const bool relative = std::islower(static_cast<unsigned char>(command));
        const Point base = relative ? current : Point{0, 0};
        const char upper = static_cast<char>(std::toupper(static_cast<unsigned char>(command)));
        if (upper != 'M' && upper != 'Z' && !open) {
            path.MoveTo(user(start)); // drawing on after a close starts where the piece started
            open = true;
        }
        double v[7];
        Point reflectedCubic = current, reflectedQuad = current;
        if (previous == 'C' || previous == 'S')
            reflectedCubic = {2 * current.x - lastCubic.x, 2 * current.y - lastCubic.y};
        if (previous == 'Q' || previous == 'T')
            reflectedQuad = {2 * current.x - lastQuad.x, 2 * current.y - lastQuad.y};
        switch (upper) {
        case 'M':
            if (!numbers(v, 2))
                return out;
            current = start = {base.x + v[0], base.y + v[1]};
            path.MoveTo(user(current));
            open = true;
            command = relative ? 'l' : 'L'; // pairs after a move draw lines
            break;
        case 'L':
            if (!numbers(v, 2))
                return out;
            current = {base.x + v[0], base.y + v[1]};
            path.LineTo(user(current));
            break;
        case 'H':
            if (!numbers(v, 1))
                return out;
            current.x = base.x + v[0];
            path.LineTo(user(current));
            break;
        case 'V':
            if (!numbers(v, 1))
                return out;
            current.y = (relative ? current.y : 0) + v[0];
            path.LineTo(user(current));
            break;
        case 'C':
        case 'S': {
            const bool smooth = upper == 'S';
            if (!numbers(v, smooth ? 4 : 6))
                return out;
            const Point c1 = smooth ? reflectedCubic : Point{base.x + v[0], base.y + v[1]};
            const double* rest = smooth ? v : v + 2;
            lastCubic = {base.x + rest[0], base.y + rest[1]};
            current = {base.x + rest[2], base.y + rest[3]};
            path.CubicTo(user(c1), user(lastCubic), user(current));
            break;
        }
        case 'Q':
        case 'T': {
            const bool smooth = upper == 'T';
            if (!numbers(v, smooth ? 2 : 4))
                return out;
            const Point q = smooth ? reflectedQuad : Point{base.x + v[0], base.y + v[1]};
            const Point end = smooth ? Point{base.x + v[0], base.y + v[1]} : Point{base.x + v[2], base.y + v[3]};
            lastQuad = q;
            // A quadratic is the cubic whose controls lie two thirds of the way to its control.
            path.CubicTo(user({current.x + (q.x - current.x) * 2 / 3, current.y + (q.y - current.y) * 2 / 3}),
                         user({end.x + (q.x - end.x) * 2 / 3, end.y + (q.y - end.y) * 2 / 3}), user(end));
            current = end;
            break;
        }
        case 'A': {
            bool large = false, sweep = false;
            if (!numbers(v, 3) || !flag(large) || !flag(sweep) || !numbers(v + 3, 2))
                return out;
            const Point end{base.x + v[3], base.y + v[4]};
            Arc(path, toUser, current, v[0], v[1], v[2], large, sweep, end);
            current = end;
            break;
        }
        case 'Z':
            path.Close();
            current = start;
            open = false;
            break;
        default: return out; // not a path command
        }
        previous = upper == 'M' ? 'L' : upper;
    }
    return out;
}

std::optional<std::string_view> StyleProperty(std::string_view style, std::string_view property)
{
    while (!style.empty()) {
        const std::size_t end = std::min(style.find(';'), style.size());
        const std::string_view declaration = style.substr(0, end);
        style.remove_prefix(std::min(end + 1, style.size()));
        const std::size_t colon = declaration.find(':');
        if (colon != std::string_view::npos && Trimmed(declaration.substr(0, colon)) == property)
            return Trimmed(declaration.substr(colon + 1));
    }
    return std::nullopt;
}

std::optional<std::string_view> UrlId(std::string_view text)
{
    text = Trimmed(text);
    if (text.size() < 6 || text.substr(0, 4) != "url(")
        return std::nullopt;
    const std::size_t close = text.find(')');
    if (close == std::string_view::npos)
        return std::nullopt;
    std::string_view inside = Trimmed(text.substr(4, close - 4));
    if (inside.size() >= 2 && (inside.front() == '"' || inside.front() == '\'') && inside.back() == inside.front())
        inside = inside.substr(1, inside.size() - 2);
    if (inside.size() < 2 || inside.front() != '#')
        return std::nullopt;
    return inside.substr(1);
}

} // namespace KestoTool::SvgSyntax
