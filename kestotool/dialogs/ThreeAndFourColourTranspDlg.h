#pragma once

#include "kestotool/dialogs/ExpandingFillPreviewDlg.h"
#include "kestotool/gdi/CFillGradient.h"
#include "kestotool/platform/Export.h"
#include "kestotool/resources/ResourceIds.h"

namespace KestoTool {

// The editor of three- and four-point transparencies.
class KESTO_API CThreeAndFourColourTranspDlg : public ExpandingFillPreviewDlg {
public:
    CThreeAndFourColourTranspDlg(IDocumentEx* document, const KestoGDI::CFillGradient* fill, const CRect& objectRect, Platform::CWnd* parent)
        : ExpandingFillPreviewDlg(IDD_THREE_FOUR_COLOUR_TRANSPARENCY, document, fill, objectRect, parent, CommitRule::ToolOnly)
    {
    }
};

} // namespace KestoTool
