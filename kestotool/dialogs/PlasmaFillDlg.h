#pragma once

#include "dialogs/FillEditorDlg.h"
#include "gdi/CFillFractal.h"
#include "resources/ResourceIds.h"

namespace KestoTool {

// The editor of plasma fills, and of plasma transparencies too.
class CPlasmaFillDlg : public CFillEditorDlg {
public:
    CPlasmaFillDlg(IDocumentEx* document, const KestoGDI::CFillFractal* fill, const CRect& objectRect, Platform::CWnd* parent)
        : CFillEditorDlg(IDD_PLASMA_FILL, document, fill, objectRect, parent)
    {
    }
};

} // namespace KestoTool
