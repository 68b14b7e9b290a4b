#pragma once

#include "kestotool/dialogs/ExpandingFillPreviewDlg.h"
#include "kestotool/gdi/CFillGradient.h"
#include "kestotool/platform/Export.h"
#include "kestotool/resources/ResourceIds.h"

namespace KestoTool {

// The editor of gradient transparencies.
class KESTO_API CGradientTranspDlg : public ExpandingFillPreviewDlg {
public:
    CGradientTranspDlg(IDocumentEx* document, const KestoGDI::CFillGradient* fill, const CRect& objectRect, Platform::CWnd* parent)
        : ExpandingFillPreviewDlg(IDD_GRADIENT_TRANSPARENCY, document, fill, objectRect, parent, CommitRule::TakeStops)
    {
    }
};

} // namespace KestoTool
