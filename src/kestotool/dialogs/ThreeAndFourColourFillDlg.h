#pragma once

#include "kestotool/dialogs/CornerColourDlgBase.h"
#include "kestotool/gdi/CFillGradient.h"
#include "kestotool/platform/Export.h"
#include "kestotool/resources/ResourceIds.h"

namespace KestoTool {

// The editor of three- and four-colour fills.
class KESTO_API CThreeAndFourColourFillDlg : public CornerColourDlgBase {
public:
    CThreeAndFourColourFillDlg(IDocumentEx* document, const KestoGDI::CFillGradient* fill, const CRect& objectRect,
                               KestoPlatform::CWnd* parent)
        : CornerColourDlgBase(IDD_THREE_FOUR_COLOUR_FILL, document, fill, objectRect, parent, CommitRule::ToolOnly)
    {
    }
};

} // namespace KestoTool
