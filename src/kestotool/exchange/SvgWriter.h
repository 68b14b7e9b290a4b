#pragma once

#include "kestotool/gdi/CFill.h"
#include "kestotool/gdi/CFillVector.h"
#include "kestotool/platform/Export.h"
#include "kestotool/raster/Paint.h"
#include "kestotool/raster/Path.h"

#include <optional>
#include <string>

namespace KestoTool {

// An SVG document of shapes painted in order on a page, each an outline filled with a fill and
// seen through a transparency, as a drawing program paints them. The kinds SVG has a paint for
// (SvgPaint) are written as such; a bitmap fill is a pattern of its texels, a vector fill a
// pattern of its drawing's own shapes and fills; the other kinds (conical, three- and
// four-colour, plasma) are painted by the renderer, at the raster resolution, into a PNG image
// over what the page shows of the shape, embedded in the document. Coordinates are the
// drawing's units, one user unit each.
class KESTO_API SvgWriter {
public:
    // The page, in drawing units.
    SvgWriter(double width, double height);

    // Pixels per drawing unit of the images that stand for kinds SVG has no paint for (and of
    // the tiles of vector fills); 1 unless set.
    void SetRasterScale(double pixelsPerUnit) { m_rasterScale = pixelsPerUnit; }
    // The page's colour under the shapes (nothing: none, the page is transparent).
    void SetPageColour(std::optional<KestoRaster::Rgba> colour) { m_page = colour; }

    // A shape: its outline filled with fill, through transparency when given, and then the
    // outline drawn as a hairline of one pixel in stroke's colour when given.
    void AddShape(const KestoRaster::Path& outline, const KestoGDI::CFill& fill, const KestoGDI::CFill* transparency,
                  std::optional<KestoRaster::Rgba> stroke);

    // The whole document.
    std::string Document() const;

private:
    // A vector fill in a vector fill's drawing is written as a pattern down to this depth, and
    // as a picture below it.
    static constexpr int kMaxVectorNesting = 2;

    struct Markup {
        std::string defs;
        std::string body;
    };
    // A shape's definitions and elements, ids ending in n; pictures at rasterScale pixels a
    // unit. A vector fill is a pattern of its drawing's own shapes (depth counts the drawings
    // it is inside).
    Markup ShapeMarkup(const KestoRaster::Path& outline, const KestoGDI::CFill& fill,
                       const KestoGDI::CFill* transparency, const std::string& n, double rasterScale, int depth) const;
    // The pattern that tiles a vector fill: its cell holding the drawing's shapes under each
    // instance's map; nothing for a fill without a grid.
    std::optional<std::string> VectorPattern(const KestoGDI::CFillVector& fill, const std::string& id,
                                             double rasterScale, int depth) const;
    // What paints the box [x0, x1] x [y0, y1] with the paint (definitions, elements): SVG's own
    // paint, a pattern for a bitmap, else an image from the renderer at rasterScale.
    static std::pair<std::string, std::string> PaintOf(const KestoRaster::Paint& paint, const std::string& id,
                                                       double x0, double y0, double x1, double y1, double rasterScale);

    double m_width;
    double m_height;
    double m_rasterScale = 1;
    std::optional<KestoRaster::Rgba> m_page;
    std::string m_defs;
    std::string m_body;
    int m_shapes = 0;
};

} // namespace KestoTool
