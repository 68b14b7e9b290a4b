#include "kestotool/tool/TypeCombos.h"

#include "kestotool/gdi/FillKinds.h"
#include "kestotool/kernel/VerifyReporter.h"
#include "kestotool/platform/CXTPControlComboBox.h"
#include "kestotool/tool/IToolHelper.h"
#include "kestotool/tool/Module.h"

#include <atomic>

namespace KestoTool {

using namespace KestoGDI;

namespace {

// The line of the empty combo's report; host logs may key on it.
constexpr int kLineNoKindOffered = 1;
std::atomic<bool> g_emptyReported = false;

using Available = bool (IToolHelper::*)(CFill*);
using KindClass = const KestoPlatform::CRuntimeClass* FillKind::*;

void PopulateTypeCombo(IToolHelper* helper, KestoPlatform::CXTPControl* control, KindClass kindClass,
                       Available available, bool setDropDownCount)
{
    auto* combo = dynamic_cast<KestoPlatform::CXTPControlComboBox*>(control);
    if (!combo)
        return;
    const bool empty = combo->GetCount() == 0;
    int kinds = 0;
    for (const FillKind& kind : FillKinds::All()) {
        if (!(kind.*kindClass))
            continue;
        ++kinds;
        const RefPtr<CFill> sample = empty ? CFill::CreateFromClass(kind.*kindClass) : nullptr;
        if (sample && (helper->*available)(sample.get())) {
            // The fill model names its kinds in English; the user reads them in the module's language.
            const int index = combo->AddString(Module::Get().LoadDialogText(sample->GetTypeAsString()));
            combo->SetItemData(index, sample->GetFillType());
        }
    }
    if (empty && combo->GetCount() == 0 && !g_emptyReported.exchange(true))
        KestoKernel::VerifyFailed("KestoTool", "TypeCombos", kLineNoKindOffered,
                                  "the type combo is empty: the host's tool helper offers no kind; answer true from "
                                  "IToolHelper::IsFillTypeAvailable and IsTransparencyTypeAvailable for the kinds to "
                                  "offer");
    if (setDropDownCount)
        combo->SetDropDownItemCount(kinds);
}

void SelectType(KestoPlatform::CXTPControl* control, const CFill* fill)
{
    auto* combo = dynamic_cast<KestoPlatform::CXTPControlComboBox*>(control);
    if (!combo || !fill)
        return;
    for (int i = 0; i < combo->GetCount(); ++i) {
        if (combo->GetItemData(i) == fill->GetFillType()) {
            combo->SetCurSel(i);
            return;
        }
    }
    combo->SetCurSel(-1);
}

} // namespace

void PopulateFillTypeCombo(IToolHelper* helper, KestoPlatform::CXTPControl* control)
{
    PopulateTypeCombo(helper, control, &FillKind::fillClass, &IToolHelper::IsFillTypeAvailable, true);
}

void PopulateTransTypeCombo(IToolHelper* helper, KestoPlatform::CXTPControl* control)
{
    PopulateTypeCombo(helper, control, &FillKind::transparencyClass, &IToolHelper::IsTransparencyTypeAvailable, false);
}

void SetCurrentFillComboIndex(KestoPlatform::CXTPControl* control, const CFill* fill)
{
    SelectType(control, fill);
}

void SetCurrentTransComboIndex(KestoPlatform::CXTPControl* control, const CFill* fill)
{
    SelectType(control, fill);
}

} // namespace KestoTool
