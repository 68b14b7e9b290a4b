#include "SampleMotif.h"

#include <kestotool/gdi/CFillLinear.h>
#include <kestotool/gdi/CFillSolid.h>
#include <kestotool/gdi/CRGBColour.h>
#include <kestotool/gdi/ColourIntPairs.h>

KestoKernel::RefPtr<const KestoGDI::VectorDrawing> SampleMotif()
{
    using KestoRaster::Path;
    auto drawing = KestoKernel::MakeRef<KestoGDI::VectorDrawing>(40000, 40000);
    const auto solid = [](KestoPlatform::COLORREF c) {
        return KestoKernel::MakeRef<KestoGDI::CFillSolid>(KestoGDI::CRGBColour(c), true);
    };
    const Path disc = Path::Ellipse({20000, 20000}, 16000, 16000);
    auto glow = KestoKernel::MakeRef<KestoGDI::CFillLinear>();
    glow->SetControls({4000, 4000}, {36000, 36000});
    KestoGDI::ColourIntPairs stops;
    stops.Add(KestoGDI::CRGBColour(KestoPlatform::RGB(250, 210, 60)), 0);
    stops.Add(KestoGDI::CRGBColour(KestoPlatform::RGB(230, 90, 30)), 10000);
    glow->SetColourIntPairs(stops);
    drawing->AddShape(disc, glow);
    Path diamond;
    diamond.MoveTo({20000, 9000});
    diamond.LineTo({31000, 20000});
    diamond.LineTo({20000, 31000});
    diamond.LineTo({9000, 20000});
    diamond.Close();
    drawing->AddShape(diamond, solid(KestoPlatform::RGB(20, 40, 120)));
    Path corner;
    corner.MoveTo({1000, 1000});
    corner.LineTo({11000, 1000});
    corner.LineTo({1000, 11000});
    corner.Close();
    drawing->AddShape(corner, solid(KestoPlatform::RGB(0, 150, 160)));
    return drawing;
}
