#pragma once

#include "dialogs/FillEditorDlg.h"
#include "gdi/CFillGradient.h"
#include "resources/ResourceIds.h"

namespace KestoTool {

// The editor of linear, radial, elliptical, conical and square fills.
class CGradientFillDlg : public CFillEditorDlg {
public:
    CGradientFillDlg(IDocumentEx* document, const KestoGDI::CFillGradient* fill, const CRect& objectRect, Platform::CWnd* parent)
        : CFillEditorDlg(IDD_GRADIENT_FILL, document, fill, objectRect, parent)
    {
    }
};

} // namespace KestoTool
