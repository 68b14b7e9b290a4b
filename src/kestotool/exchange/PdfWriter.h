#pragma once

#include "kestotool/gdi/CFill.h"
#include "kestotool/platform/Export.h"
#include "kestotool/raster/Paint.h"
#include "kestotool/raster/Path.h"

#include <memory>
#include <optional>
#include <string>

namespace KestoTool {

// A one-page PDF document of shapes painted in order, each an outline filled with a fill and
// seen through a transparency, as a drawing program paints them. Linear, radial and elliptical
// fills are the format's own shadings, a square (diamond) fill four of them, one per wedge;
// three- and four-colour fills are patch meshes with a colour at each corner, exact wherever
// their colours blend without clipping; the other kinds are images painted by the renderer
// over what the page shows of the shape. A transparency is a soft mask painted the same way.
// Shapes are painted as they are added; the document is whole once taken.
class KESTO_API PdfWriter {
public:
    // The page, in drawing units; pointsPerUnit sizes it (0.75: a unit is a pixel at 96 per
    // inch), and rasterDpi is the resolution of the images that stand for kinds the format has
    // no shading for (each at most MaxImageSide pixels a side).
    PdfWriter(double width, double height, double pointsPerUnit = 0.75, double rasterDpi = 300);
    ~PdfWriter();
    PdfWriter(const PdfWriter&) = delete;
    PdfWriter& operator=(const PdfWriter&) = delete;

    static constexpr int MaxImageSide = 8192;

    // The page's colour under the shapes, set before the first shape; none leaves it blank.
    void SetPageColour(KestoRaster::Rgba colour);

    // A shape: its outline filled with fill, through transparency when given, and then the
    // outline drawn as a hairline in stroke's colour when given.
    void AddShape(const KestoRaster::Path& outline, const KestoGDI::CFill& fill, const KestoGDI::CFill* transparency,
                  std::optional<KestoRaster::Rgba> stroke);

    // The finished document; empty if the PDF library failed (out of memory, say). The writer
    // takes no more shapes afterwards.
    std::string Document();

private:
    struct Surface;
    std::unique_ptr<Surface> m_surface;
};

} // namespace KestoTool
