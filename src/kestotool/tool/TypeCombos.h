#pragma once

#include "kestotool/gdi/CFill.h"
#include "kestotool/platform/CXTPControl.h"
#include "kestotool/platform/Export.h"

namespace KestoTool {

class IToolHelper;

// Fills an empty type combo with the fill kinds the helper offers, in the order of FillKinds
// (text: the kind's name, data: its fill type), and sets the drop-down to show every fill kind
// (also when the combo was not empty).
KESTO_API void PopulateFillTypeCombo(IToolHelper* helper, KestoPlatform::CXTPControl* control);
// The same for transparencies; the drop-down count is left as it is.
KESTO_API void PopulateTransTypeCombo(IToolHelper* helper, KestoPlatform::CXTPControl* control);
// Selects the item whose data is the fill's type, or none.
KESTO_API void SetCurrentFillComboIndex(KestoPlatform::CXTPControl* control, const KestoGDI::CFill* fill);
KESTO_API void SetCurrentTransComboIndex(KestoPlatform::CXTPControl* control, const KestoGDI::CFill* fill);

} // namespace KestoTool
