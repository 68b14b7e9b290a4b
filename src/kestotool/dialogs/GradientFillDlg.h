#pragma once

#include "kestotool/dialogs/GradientDlgBase.h"
#include "kestotool/gdi/CFillGradient.h"
#include "kestotool/platform/Export.h"
#include "kestotool/resources/ResourceIds.h"

namespace KestoTool {

// The editor of linear, radial, elliptical, conical and square fills.
class KESTO_API CGradientFillDlg : public GradientDlgBase {
public:
    CGradientFillDlg(IDocumentEx* document, const KestoGDI::CFillGradient* fill, const CRect& objectRect,
                     KestoPlatform::CWnd* parent)
        : GradientDlgBase(IDD_GRADIENT_FILL, document, fill, objectRect, parent)
    {
    }
};

} // namespace KestoTool
