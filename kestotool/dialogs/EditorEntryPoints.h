#pragma once

#include "kestotool/gdi/CFill.h"
#include "kestotool/geometry/K2DLtGeneral.h"
#include "kestotool/platform/CXTPControl.h"
#include "kestotool/platform/Export.h"
#include "kestotool/tool/KestoToolImports.h"


namespace Platform {
class CWnd;
}

namespace KestoTool {

class IDocumentEx;
class IToolHelper;

// Opens the editor that suits the fill, modally, and answers the edited fill as a new object,
// or nothing on Cancel or for a fill no editor takes (bitmap, discrete mesh). None and solid
// fills go to the host's colour chooser instead. The fill passed in is never changed; the
// document must not be null.
KESTO_API RefPtr<KestoGDI::CFill> EditFill(IDocumentEx* document, const KestoGDI::CFill* fill, const CRect& objectRect,
                                 Platform::CWnd* parent, const Kesto2D::K2DLtGeneral& objectTransform);

// The same for a transparency; the document may be null. The string is neither read nor
// written; it stays for callers that pass one.
KESTO_API RefPtr<KestoGDI::CFill> EditTransparency(IDocumentEx* document, const KestoGDI::CFill* transparency,
                                         CString& unused, const CRect& objectRect, Platform::CWnd* parent);
KESTO_API RefPtr<KestoGDI::CFill> EditTransparency(IDocumentEx* document, const KestoGDI::CFill* transparency,
                                         const CRect& objectRect, Platform::CWnd* parent);

// Fills an empty type combo with the fill kinds the helper offers, in the order of FillKinds
// (text: the kind's name, data: its fill type), and sets the drop-down to show every fill kind
// (also when the combo was not empty).
KESTO_API void PopulateFillTypeCombo(IToolHelper* helper, Platform::CXTPControl* control);
// The same for transparencies; the drop-down count is left as it is.
KESTO_API void PopulateTransTypeCombo(IToolHelper* helper, Platform::CXTPControl* control);
// Selects the item whose data is the fill's type, or none.
KESTO_API void SetCurrentFillComboIndex(Platform::CXTPControl* control, const KestoGDI::CFill* fill);
KESTO_API void SetCurrentTransComboIndex(Platform::CXTPControl* control, const KestoGDI::CFill* fill);

} // namespace KestoTool
