#pragma once

#include "dialogs/FillEditorDlg.h"
#include "gdi/CFillGradient.h"
#include "resources/ResourceIds.h"

namespace KestoTool {

// The editor of gradient transparencies.
class CGradientTranspDlg : public CFillEditorDlg {
public:
    CGradientTranspDlg(IDocumentEx* document, const KestoGDI::CFillGradient* fill, const CRect& objectRect, Platform::CWnd* parent)
        : CFillEditorDlg(IDD_GRADIENT_TRANSPARENCY, document, fill, objectRect, parent)
    {
    }
};

} // namespace KestoTool
