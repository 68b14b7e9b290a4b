#pragma once

#include "dialogs/FillEditorDlg.h"
#include "gdi/CFillGradient.h"
#include "resources/ResourceIds.h"

namespace KestoTool {

// The editor of three- and four-point transparencies.
class CThreeAndFourColourTranspDlg : public CFillEditorDlg {
public:
    CThreeAndFourColourTranspDlg(IDocumentEx* document, const KestoGDI::CFillGradient* fill, const CRect& objectRect, Platform::CWnd* parent)
        : CFillEditorDlg(IDD_THREE_FOUR_COLOUR_TRANSPARENCY, document, fill, objectRect, parent)
    {
    }
};

} // namespace KestoTool
