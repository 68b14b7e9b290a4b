// FillTool's context toolbar, command map, editor commands and hint lines.
#include "kestotool/filltool/FillTool.h"

#include "kestotool/filltool/FillCommands.h"
#include "kestotool/gdi/CFillVector.h"
#include "kestotool/gdi/CTransparency.h"
#include "kestotool/geometry/Rounding.h"
#include "kestotool/kernel/VerifyReporter.h"
#include "kestotool/platform/CCmdUI.h"
#include "kestotool/platform/CXTPControlComboBox.h"
#include "kestotool/platform/CXTPControlPopupColor.h"
#include "kestotool/platform/ScreenMetrics.h"
#include "kestotool/tool/FillEditors_p.h"
#include "kestotool/tool/IDocumentEx.h"
#include "kestotool/tool/IToolHelper.h"
#include "kestotool/tool/Module.h"
#include "kestotool/tool/ToolIdMap.h"
#include "kestotool/tool/TypeCombos.h"

namespace KestoTool {

using KestoPlatform::XTPButtonStyle;
using KestoPlatform::XTPControlType;

namespace {

bool DerivesFromPopup(FillControlClass c)
{
    return c == FillControlClass::Popup || c == FillControlClass::SplitButtonPopup;
}

std::unique_ptr<KestoPlatform::CXTPControl> MakeControl(FillControlClass c, int id)
{
    switch (c) {
    case FillControlClass::Button: return std::make_unique<KestoPlatform::CXTPControlButton>(id);
    case FillControlClass::Popup: return std::make_unique<KestoPlatform::CXTPControlPopup>(id);
    case FillControlClass::SplitButtonPopup: return std::make_unique<KestoPlatform::CXTPControlSplitButtonPopup>(id);
    case FillControlClass::ComboBox: return std::make_unique<KestoPlatform::CXTPControlComboBox>(id);
    case FillControlClass::UnitEdit: return std::make_unique<KestoPlatform::CXTPControlEdit>(id);
    case FillControlClass::None: break;
    }
    return nullptr;
}

// Position kept, width and height scaled from 96 dpi to the screen's.
KestoPlatform::CRect ScaledForScreen(const KestoPlatform::CRect& r)
{
    const int dpi = KestoPlatform::ScreenMetrics::GetLogPixelsX();
    return {r.left, r.top, r.left + Kesto2D::MulDiv(r.Width(), dpi, 96), r.top + Kesto2D::MulDiv(r.Height(), dpi, 96)};
}

int ToLibrary(int hostCommand)
{
    return ToolIdMap::GetInstance().MapIDToLibrary(FillToolKey, hostCommand);
}

bool RangeAllocated()
{
    return ToolIdMap::GetInstance().RangeAllocated(FillToolKey);
}

bool IsColourCommand(int number)
{
    return number == FillCmdStart || number == FillCmdEnd || number == FillCmdSolid;
}

} // namespace

const KestoPlatform::AFX_MSGMAP* FillTool::GetMessageMap() const
{
    using namespace KestoPlatform::MessageMap;
    static const KestoPlatform::AFX_MSGMAP_ENTRY entries[] = {
        Command<&FillTool::OnFillEdit>(FillCmdEdit),
        Update<&FillTool::OnUpdateFillEdit>(FillCmdEdit),
        Command<&FillTool::OnTransEdit>(FillCmdTransEdit),
        Command<&FillTool::OnFillEditType>(FillCmdEditType),
        Update<&FillTool::OnUpdateFillEditType>(FillCmdEditType),
        Command<&FillTool::OnFillStart>(FillCmdStart),
        Update<&FillTool::OnUpdateFillStart>(FillCmdStart),
        Command<&FillTool::OnFillEnd>(FillCmdEnd),
        Update<&FillTool::OnUpdateFillEnd>(FillCmdEnd),
        Command<&FillTool::OnFillSolid>(FillCmdSolid),
        Update<&FillTool::OnUpdateFillSolid>(FillCmdSolid),
        Notify<&FillTool::OnFillTypeChange>(FillCmdEditType, KestoPlatform::XTP_NOTIFY_EXECUTE),
    };
    static const KestoPlatform::AFX_MSGMAP map{CCmdTarget::GetThisMessageMap(), entries};
    return &map;
}

bool FillTool::OnCmdMsg(int id, int code, void* extra, KestoPlatform::AFX_CMDHANDLERINFO* info)
{
    return CCmdTarget::OnCmdMsg(ToLibrary(id), code, extra, info);
}

int FillTool::OnCreateControl(KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc)
{
    if (!cc || !RangeAllocated())
        return false;
    const int number = ToLibrary(cc->nID);
    if (number == -1)
        return false;
    if (IsColourCommand(number))
        return GetToolHelper()->CreateColourControl(cc);
    const FillCommandRow* d = FillCommands::Find(number);
    if (!d || d->controlClass == FillControlClass::None)
        return false;
    if (d->controlClass == FillControlClass::Popup && d->type != XTPControlType::None) {
        const bool plainButton = d->buttonOffToolbar && !cc->bToolBar;
        cc->controlType = plainButton ? XTPControlType::Button : d->type;
        cc->buttonStyle = d->style;
        return true;
    }
    if (DerivesFromPopup(d->controlClass) && d->buttonOffToolbar && !cc->bToolBar) {
        cc->pControl = std::make_unique<KestoPlatform::CXTPControlButton>(cc->nID);
        return true;
    }
    std::unique_ptr<KestoPlatform::CXTPControl> control = MakeControl(d->controlClass, cc->nID);
    if (d->type != XTPControlType::None)
        control->SetType(d->type);
    if (d->style != XTPButtonStyle::Automatic)
        control->SetStyle(d->style);
    control->SetRect(ScaledForScreen(d->rect));
    control->SetCaption(d->caption);
    cc->pControl = std::move(control);
    return true;
}

void FillTool::OnAfterCreateControl(KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc)
{
    if (!cc || !RangeAllocated() || !cc->pControl)
        return;
    const int number = ToLibrary(cc->nID);
    if (number == -1)
        return;
    KestoPlatform::CXTPControl* control = cc->pControl.get();
    if (const FillCommandRow* row = FillCommands::Find(number); row && row->promptId != 0) {
        const CString prompt = Module::Get().LoadString(row->promptId);
        if (!prompt.IsEmpty())
            control->SetPrompt(prompt);
    }
    if (number == FillCmdEditType) {
        if (IsTransparency()) {
            PopulateTransTypeCombo(GetToolHelper(), control);
            SetCurrentTransComboIndex(control, GetFill());
        } else {
            PopulateFillTypeCombo(GetToolHelper(), control);
            SetCurrentFillComboIndex(control, GetFill());
        }
    }
    if (IsColourCommand(number))
        control->SetFlags(control->GetFlags() & ~4u);
}

void FillTool::OnFillEdit()
{
    if (!GetFill() || !GetDocument())
        return;
    const K2DLtGeneral toSpread = GetAppObjectToSpreadTransform();
    const CRect box = GetObjectBBox();
    RefPtr<CFill> copy = GetFill()->Clone();
    auto* vector = dynamic_cast<KestoGDI::CFillVector*>(copy.get());
    K2DLtGeneral vectorTransform;
    copy->Transform(toSpread);
    if (vector) {
        vectorTransform = vector->GetTransform();
        vector->UpdateBBox(box, K2DLtGeneral());
    }
    const FillEditors& editors = FillEditors::Installed();
    if (!editors.editFill)
        return;
    RefPtr<CFill> edited = editors.editFill(GetDocument(), copy.get(), box, nullptr, toSpread);
    if (!edited)
        return;
    RefPtr<CFill> result = edited->Clone();
    const K2DLtGeneral back = toSpread.HasInverse() ? toSpread.GetInverse() : K2DLtGeneral();
    if (auto* editedVector = dynamic_cast<KestoGDI::CFillVector*>(result.get())) {
        editedVector->UpdateBBox(box, vectorTransform);
        editedVector->Transform(back);
        editedVector->UpdateBBox(box, editedVector->GetTransform());
    } else {
        result->Transform(back);
    }
    UpdateFill(result.get(), nullptr);
}

void FillTool::OnTransEdit()
{
    if (!GetFill())
        return;
    const K2DLtGeneral toSpread = GetAppObjectToSpreadTransform();
    RefPtr<CFill> copy = GetFill()->Clone();
    copy->Transform(toSpread);
    const FillEditors& editors = FillEditors::Installed();
    if (!editors.editTransparency)
        return;
    RefPtr<CFill> edited = editors.editTransparency(GetDocument(), copy.get(), GetObjectBBox(), nullptr);
    if (!edited)
        return;
    RefPtr<CFill> result = edited->Clone();
    if (toSpread.HasInverse())
        result->Transform(toSpread.GetInverse());
    UpdateTransparency(result.get(), nullptr, false);
}

// The edit command's update and the type combo's command have nothing to do; they exist so that
// the toolkit finds the commands handled.
void FillTool::OnUpdateFillEdit(KestoPlatform::CCmdUI*) {}
void FillTool::OnFillEditType() {}
void FillTool::OnUpdateFillEditType(KestoPlatform::CCmdUI*) {}

void FillTool::OnFillStart()
{
    AdjustNodeColour(FillCmdStart);
}
void FillTool::OnFillEnd()
{
    AdjustNodeColour(FillCmdEnd);
}
void FillTool::OnFillSolid()
{
    AdjustNodeColour(FillCmdSolid);
}
void FillTool::OnUpdateFillStart(KestoPlatform::CCmdUI* ui)
{
    UpdateColourCommand(ui, FillCmdStart);
}
void FillTool::OnUpdateFillEnd(KestoPlatform::CCmdUI* ui)
{
    UpdateColourCommand(ui, FillCmdEnd);
}
void FillTool::OnUpdateFillSolid(KestoPlatform::CCmdUI* ui)
{
    UpdateColourCommand(ui, FillCmdSolid);
}

void FillTool::UpdateColourCommand(KestoPlatform::CCmdUI* ui, unsigned int node)
{
    auto* popup = dynamic_cast<KestoPlatform::CXTPControlPopupColor*>(ui->GetControl());
    if (std::unique_ptr<CColour> colour = GetNodeColour(node); colour && popup)
        popup->SetColor(colour->GetRGB());
    ui->Enable(true);
}

void FillTool::OnFillTypeChange(KestoPlatform::NMXTPCONTROL* notify, long*)
{
    auto* combo = dynamic_cast<KestoPlatform::CXTPControlComboBox*>(notify ? notify->pControl : nullptr);
    if (!combo) {
        KestoKernel::VerifyFailed("KestoTool", "FillTool", 1060, "send the type change from the type combo box");
        return;
    }
    const auto type = static_cast<int>(combo->GetItemData(combo->GetCurSel()));
    if (IsTransparency()) {
        if (const CRuntimeClass* c = KestoGDI::CTransparency::GetRuntimeClassFromType(type))
            SetTransparencyType(c);
    } else if (const CRuntimeClass* c = CFill::GetRuntimeClassFromType(type)) {
        SetFillType(c);
    }
}

bool FillTool::ComposeHintLine(CString* out, int fillStringId, int transparencyStringId) const
{
    const int id = IsTransparency() ? transparencyStringId : fillStringId;
    if (id == -1 || !out)
        return false;
    out->Format(L"%s%s", GetCurrentSelectionDescription().GetString(), Module::Get().LoadString(id).GetString());
    return true;
}

} // namespace KestoTool
