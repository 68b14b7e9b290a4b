#pragma once

#include "kestotool/dialogs/GradientDlgBase.h"
#include "kestotool/gdi/CFillGradient.h"
#include "kestotool/platform/Export.h"
#include "kestotool/resources/ResourceIds.h"

namespace KestoTool {

// The editor of gradient transparencies.
class KESTO_API CGradientTranspDlg : public GradientDlgBase {
public:
    CGradientTranspDlg(IDocumentEx* document, const KestoGDI::CFillGradient* fill, const CRect& objectRect,
                       KestoPlatform::CWnd* parent)
        : GradientDlgBase(IDD_GRADIENT_TRANSPARENCY, document, fill, objectRect, parent)
    {
    }
};

} // namespace KestoTool
