#include "dialogs/EditorEntryPoints.h"

#include "dialogs/GradientFillDlg.h"
#include "dialogs/GradientTranspDlg.h"
#include "dialogs/PlasmaFillDlg.h"
#include "dialogs/SolidTransparencyDlg.h"
#include "dialogs/ThreeAndFourColourFillDlg.h"
#include "dialogs/ThreeAndFourColourTranspDlg.h"
#include "dialogs/VectorFillDlgBase.h"
#include "gdi/CFillBitmap.h"
#include "gdi/CFillConical.h"
#include "gdi/CFillDiscreteMesh.h"
#include "gdi/CFillEllipse.h"
#include "gdi/CFillFourColour.h"
#include "gdi/CFillLinear.h"
#include "gdi/CFillNone.h"
#include "gdi/CFillRadial.h"
#include "gdi/CFillSolid.h"
#include "gdi/CFillSquare.h"
#include "gdi/CFillThreeColour.h"
#include "gdi/CTransparencyBitmap.h"
#include "gdi/CTransparencyConical.h"
#include "gdi/CTransparencyEllipse.h"
#include "gdi/CTransparencyFourPoint.h"
#include "gdi/CTransparencyFractal.h"
#include "gdi/CTransparencyLinear.h"
#include "gdi/CTransparencyNone.h"
#include "gdi/CTransparencyRadial.h"
#include "gdi/CTransparencySquare.h"
#include "gdi/CTransparencyThreePoint.h"
#include "platform/CXTPControlComboBox.h"
#include "platform/WindowTypes.h"
#include "tool/IDocumentEx.h"
#include "tool/IToolHelper.h"

#include <memory>

namespace KestoTool {

using namespace KestoGDI;

namespace {

// Runs an editor with the helper's setting and hands over its fill after OK.
RefPtr<CFill> Run(CFillEditorDlg&& dialog, bool helperSetting)
{
    dialog.SetHelperSetting(helperSetting);
    return dialog.DoModal() == Platform::IDOK ? dialog.TakeFill() : nullptr;
}

template <class T>
const T* As(const CFill* fill)
{
    return dynamic_cast<const T*>(fill);
}

RefPtr<CFill> PickSolid(IDocumentEx* document, const CFill* fill, Platform::CWnd* parent)
{
    const auto* solid = As<CFillSolid>(fill);
    std::unique_ptr<CColour> chosen(
        document->GetToolHelper()->ColourPicker(solid ? &solid->GetColour() : nullptr, parent));
    if (!chosen)
        return nullptr;
    auto result = Kernel::MakeRef<CFillSolid>(*chosen, true);
    if (solid) {
        result->SetBlendMode(solid->GetBlendMode());
        result->SetOverprint(solid->GetOverprint());
    }
    return result;
}

bool IsThreeOrFourColour(const CFill* fill)
{
    return As<CFillThreeColour>(fill) || As<CFillFourColour>(fill);
}

using Available = bool (IToolHelper::*)(CFill*);

void PopulateTypeCombo(IToolHelper* helper, Platform::CXTPControl* control,
                       std::span<const Platform::CRuntimeClass* const> table, Available available,
                       bool setDropDownCount)
{
    auto* combo = dynamic_cast<Platform::CXTPControlComboBox*>(control);
    if (!combo)
        return;
    if (combo->GetCount() == 0) {
        for (const Platform::CRuntimeClass* kind : table) {
            const RefPtr<CFill> sample = CFill::CreateFromClass(kind);
            if (sample && (helper->*available)(sample.get())) {
                const int index = combo->AddString(sample->GetTypeAsString());
                combo->SetItemData(index, sample->GetFillType());
            }
        }
    }
    if (setDropDownCount)
        combo->SetDropDownItemCount(static_cast<int>(table.size()));
}

void SelectType(Platform::CXTPControl* control, const CFill* fill)
{
    auto* combo = dynamic_cast<Platform::CXTPControlComboBox*>(control);
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

std::span<const Platform::CRuntimeClass* const> FillTypeTable()
{
    static const Platform::CRuntimeClass* const table[] = {
        CFillNone::GetThisClass(),        CFillSolid::GetThisClass(),        CFillLinear::GetThisClass(),
        CFillRadial::GetThisClass(),      CFillEllipse::GetThisClass(),      CFillConical::GetThisClass(),
        CFillFractal::GetThisClass(),     CFillSquare::GetThisClass(),       CFillThreeColour::GetThisClass(),
        CFillFourColour::GetThisClass(),  CFillBitmap::GetThisClass(),       CFillDiscreteMesh::GetThisClass(),
        CFillVector::GetThisClass(),
    };
    return table;
}

std::span<const Platform::CRuntimeClass* const> TransparencyTypeTable()
{
    static const Platform::CRuntimeClass* const table[] = {
        CTransparencyNone::GetThisClass(),       CTransparencyFlat::GetThisClass(),
        CTransparencyLinear::GetThisClass(),     CTransparencyRadial::GetThisClass(),
        CTransparencyEllipse::GetThisClass(),    CTransparencyConical::GetThisClass(),
        CTransparencyFractal::GetThisClass(),    CTransparencySquare::GetThisClass(),
        CTransparencyThreePoint::GetThisClass(), CTransparencyFourPoint::GetThisClass(),
        CTransparencyBitmap::GetThisClass(),
    };
    return table;
}

RefPtr<CFill> EditFill(IDocumentEx* document, const CFill* fill, const CRect& objectRect, Platform::CWnd* parent,
                       const Kesto2D::K2DLtGeneral& objectTransform)
{
    const bool setting = document->GetToolHelper()->GetDialogSetting();
    if (As<CFillNone>(fill) || As<CFillSolid>(fill))
        return PickSolid(document, fill, parent);
    if (IsThreeOrFourColour(fill))
        return Run(CThreeAndFourColourFillDlg(document, As<CFillGradient>(fill), objectRect, parent), setting);
    if (const auto* plasma = As<CFillFractal>(fill))
        return Run(CPlasmaFillDlg(document, plasma, objectRect, parent), setting);
    if (const auto* vector = As<CFillVector>(fill))
        return Run(CVectorFillDlgBase(document, vector, objectRect, parent, IDD_VECTOR_FILL, objectTransform), setting);
    if (const auto* gradient = As<CFillGradient>(fill))
        return Run(CGradientFillDlg(document, gradient, objectRect, parent), setting);
    return nullptr;
}

RefPtr<CFill> EditTransparency(IDocumentEx* document, const CFill* transparency, CString&, const CRect& objectRect,
                               Platform::CWnd* parent)
{
    const bool setting = document ? document->GetToolHelper()->GetDialogSetting() : false;
    if (As<CTransparencyFlat>(transparency) || As<CFillNone>(transparency)) {
        // This dialog is made without the parent window and without the helper's setting.
        CSolidTransparencyDlg dialog(As<CTransparencyFlat>(transparency), nullptr);
        return dialog.DoModal() == Platform::IDOK ? dialog.GetTrans() : nullptr;
    }
    if (IsThreeOrFourColour(transparency))
        return Run(CThreeAndFourColourTranspDlg(document, As<CFillGradient>(transparency), objectRect, parent),
                   setting);
    // There is no plasma transparency dialog: the plasma fill dialog serves both.
    if (const auto* plasma = As<CFillFractal>(transparency))
        return Run(CPlasmaFillDlg(document, plasma, objectRect, parent), setting);
    if (const auto* gradient = As<CFillGradient>(transparency))
        return Run(CGradientTranspDlg(document, gradient, objectRect, parent), setting);
    return nullptr;
}

RefPtr<CFill> EditTransparency(IDocumentEx* document, const CFill* transparency, const CRect& objectRect,
                               Platform::CWnd* parent)
{
    CString unused;
    return EditTransparency(document, transparency, unused, objectRect, parent);
}

void PopulateFillTypeCombo(IToolHelper* helper, Platform::CXTPControl* control)
{
    PopulateTypeCombo(helper, control, FillTypeTable(), &IToolHelper::IsFillTypeAvailable, true);
}

void PopulateTransTypeCombo(IToolHelper* helper, Platform::CXTPControl* control)
{
    PopulateTypeCombo(helper, control, TransparencyTypeTable(), &IToolHelper::IsTransparencyTypeAvailable, false);
}

void SetCurrentFillComboIndex(Platform::CXTPControl* control, const CFill* fill)
{
    SelectType(control, fill);
}

void SetCurrentTransComboIndex(Platform::CXTPControl* control, const CFill* fill)
{
    SelectType(control, fill);
}

} // namespace KestoTool
