#pragma once

#include "kestotool/gdi/CFill.h"
#include "kestotool/kernel/RefPtr.h"
#include "kestotool/platform/Export.h"
#include "kestotool/raster/Paint.h"
#include "kestotool/raster/Path.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace KestoTool {

// Reads the part of SVG a designer's drawing is made of into shapes with fills of this model:
// rect, circle, ellipse, polygon, polyline and path (every command, arcs included), in groups
// with transforms; solid fills and linear and radial gradients (href chains, both unit
// systems, gradientTransform, stops), fill-opacity and opacity. A group clipped to one outline
// holding one painted element reads as that outline with the element's paint, and a mask
// painted with one gradient or colour as a transparency, which is how SvgWriter writes the
// kinds SVG has a paint for: reading back what it wrote gives equal fills for those kinds.
//
// Everything else (strokes, text, images, filters, patterns, other clips and masks, style
// sheets) is passed over and named once in the list of what was skipped. A file that is no
// SVG, or that is damaged or outside the limits, is refused with the reason; reading never
// expands XML entities.
class KESTO_API SvgReader {
public:
    SvgReader() = delete;

    struct Limits {
        std::size_t bytes = std::size_t(64) << 20;
        std::size_t shapes = 10000;
        std::size_t segments = 1000000;    // path segments in the whole file
        std::size_t pathSegments = 100000; // in one shape's outline
        int depth = 64;                 // nesting of groups
        double page = 1 << 20;          // the page's longer side, in drawing units
    };

    // What the reader tells the user: an English pattern with %1, %2... where its arguments go.
    // Every pattern is one of Patterns(), so a host can show a message in its user's language:
    // it translates the pattern and puts the arguments in. Text() is the message in English.
    struct Message {
        std::string_view pattern;
        std::vector<std::string> arguments;

        std::string Text() const { return Text(pattern); }
        // The message with its arguments put into another pattern of the same places (a
        // translation of pattern, UTF-8), in one pass: an argument that quotes "%2" stays as it is.
        std::string Text(std::string_view into) const;
        bool operator==(const Message&) const = default;
    };
    static std::span<const std::string_view> Patterns();

    struct Shape {
        KestoRaster::Path outline; // drawing units
        KestoKernel::RefPtr<const KestoGDI::CFill> fill;
        KestoKernel::RefPtr<const KestoGDI::CFill> transparency; // null: none
    };

    struct Drawing {
        double width = 0;
        double height = 0;
        // The colour of a first rectangle that covers the page exactly in one solid colour,
        // which SVG has no other way to say; it is not among the shapes.
        std::optional<KestoRaster::Rgba> page;
        std::vector<Shape> shapes;
        // What was not read, each named once, in the order met.
        std::vector<Message> skipped;
    };

    struct Result {
        std::optional<Drawing> drawing;
        Message error; // why there is no drawing
    };

    // The page's width and height are its size in drawing units (pixels at 96 per inch: pt, pc,
    // mm, cm and in are turned into pixels); the outermost viewBox is fitted into it, centred,
    // its aspect kept.
    static Result Read(std::string_view text, const Limits& limits);
    static Result Read(std::string_view text) { return Read(text, Limits()); }
};

} // namespace KestoTool
