#pragma once

#include "dialogs/FillEditorDlg.h"
#include "gdi/CFillGradient.h"
#include "resources/ResourceIds.h"

namespace KestoTool {

// The editor of three- and four-colour fills.
class CThreeAndFourColourFillDlg : public CFillEditorDlg {
public:
    CThreeAndFourColourFillDlg(IDocumentEx* document, const KestoGDI::CFillGradient* fill, const CRect& objectRect, Platform::CWnd* parent)
        : CFillEditorDlg(IDD_THREE_FOUR_COLOUR_FILL, document, fill, objectRect, parent)
    {
    }
};

} // namespace KestoTool
