#pragma once

#include "kestotool/dialogs/ExpandingFillPreviewDlg.h"
#include "kestotool/gdi/CFillFractal.h"
#include "kestotool/platform/Export.h"
#include "kestotool/resources/ResourceIds.h"

namespace KestoTool {

// The editor of plasma fills, and of plasma transparencies too.
class KESTO_API CPlasmaFillDlg : public ExpandingFillPreviewDlg {
public:
    CPlasmaFillDlg(IDocumentEx* document, const KestoGDI::CFillFractal* fill, const CRect& objectRect, Platform::CWnd* parent)
        : ExpandingFillPreviewDlg(IDD_PLASMA_FILL, document, fill, objectRect, parent, CommitRule::TakeStops)
    {
    }
};

} // namespace KestoTool
