#pragma once

#include "kestotool/geometry/K2DLtGeneral.h"
#include "kestotool/raster/Paint.h"
#include "kestotool/raster/Path.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace KestoTool::SvgSyntax {

// The small languages inside SVG attributes. Each reads the whole text or answers nothing (a
// path's data answers what it read up to its first error, as SVG renderers draw it).

// A number: sign, digits, fraction, exponent; nothing for text that is not one whole finite
// number ("inf", "1e999" and "12px" are not).
std::optional<double> Number(std::string_view text);

// A length or coordinate in user units: a number with an optional unit (px, pt, pc, mm, cm,
// in) or a percentage of reference.
std::optional<double> Length(std::string_view text, double reference);

// A fraction 0..1 written as a number or a percentage (offsets, opacities), clamped.
std::optional<double> Fraction(std::string_view text);

// A colour: #rgb, #rrggbb, rgb(r, g, b) in numbers or percentages, or a colour keyword.
std::optional<KestoRaster::Rgba> Colour(std::string_view text);

// A transform list (matrix, translate, scale, rotate, skewX, skewY), applied right to left as
// SVG composes it; nothing for an error anywhere in it.
std::optional<Kesto2D::K2DLtGeneral> Transform(std::string_view text);

// Path data as a path of lines and cubics, mapped through toUser: quadratics raised to cubics
// and arcs as cubics of at most a quarter turn each. Stops at maxSegments segments, reporting
// it in *tooMany.
struct PathData {
    KestoRaster::Path path;
    bool tooMany = false;
};
PathData Path(std::string_view data, const Kesto2D::K2DLtGeneral& toUser, std::size_t maxSegments);

// The value of property in a style attribute ("fill: red; opacity: .5"), if it sets it.
std::optional<std::string_view> StyleProperty(std::string_view style, std::string_view property);

// An id in a paint reference, "url(#id)" (with or without quotes); nothing for anything else.
std::optional<std::string_view> UrlId(std::string_view text);

} // namespace KestoTool::SvgSyntax
