#pragma once

#include "gdi/CFill.h"
#include "geometry/K2DLtGeneral.h"
#include "platform/CXTPControl.h"
#include "tool/KestoToolImports.h"


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
RefPtr<KestoGDI::CFill> EditFill(IDocumentEx* document, const KestoGDI::CFill* fill, const CRect& objectRect,
                                 Platform::CWnd* parent, const Kesto2D::K2DLtGeneral& objectTransform);

// The same for a transparency; the document may be null. The string is neither read nor
// written; it stays for callers that pass one.
RefPtr<KestoGDI::CFill> EditTransparency(IDocumentEx* document, const KestoGDI::CFill* transparency,
                                         CString& unused, const CRect& objectRect, Platform::CWnd* parent);
RefPtr<KestoGDI::CFill> EditTransparency(IDocumentEx* document, const KestoGDI::CFill* transparency,
                                         const CRect& objectRect, Platform::CWnd* parent);

// Fills an empty type combo with the fill kinds the helper offers, in the order of FillKinds
// (text: the kind's name, data: its fill type), and sets the drop-down to show every fill kind
// (also when the combo was not empty).
void PopulateFillTypeCombo(IToolHelper* helper, Platform::CXTPControl* control);
// The same for transparencies; the drop-down count is left as it is.
void PopulateTransTypeCombo(IToolHelper* helper, Platform::CXTPControl* control);
// Selects the item whose data is the fill's type, or none.
void SetCurrentFillComboIndex(Platform::CXTPControl* control, const KestoGDI::CFill* fill);
void SetCurrentTransComboIndex(Platform::CXTPControl* control, const KestoGDI::CFill* fill);

} // namespace KestoTool
