#include "kestotool/dialogs/GradientDlgBase.h"

#include "kestotool/gdi/CFillWithStops.h"
#include "kestotool/gdi/FillKinds.h"
#include "kestotool/resources/ResourceIds.h"
#include "kestotool/tool/Module.h"

#include <algorithm>
#include <array>

namespace KestoTool {

namespace {

constexpr std::array kGradientKinds{KestoGDI::FillType::Linear, KestoGDI::FillType::Radial,
                                    KestoGDI::FillType::Elliptical, KestoGDI::FillType::Conical,
                                    KestoGDI::FillType::Square};

} // namespace

const KestoPlatform::AFX_MSGMAP* GradientDlgBase::GetMessageMap() const
{
    static const KestoPlatform::AFX_MSGMAP_ENTRY entries[] = {
        KestoPlatform::MessageMap::Control<&GradientDlgBase::OnKindSelected>(IDC_GRADIENT_KIND,
                                                                             KestoPlatform::CBN_SELCHANGE),
    };
    static const KestoPlatform::AFX_MSGMAP map{StopListEditorDlg::GetMessageMap(), entries};
    return &map;
}

void GradientDlgBase::DoDataExchange(KestoPlatform::CDataExchange* pDX)
{
    StopListEditorDlg::DoDataExchange(pDX);
    KestoPlatform::DDX_Control(pDX, IDC_GRADIENT_KIND, m_kind);
}

bool GradientDlgBase::OnInitDialog()
{
    const bool transparency = GetFill() && GetFill()->IsTransparency();
    for (const KestoGDI::FillType::Type type : kGradientKinds) {
        const KestoGDI::FillKind* kind = KestoGDI::FillKinds::Find(type);
        m_kind.SetItemData(
            m_kind.AddString(Module::Get().LoadDialogText(transparency ? kind->transparencyName : kind->fillName)),
            type);
    }
    return StopListEditorDlg::OnInitDialog();
}

void GradientDlgBase::OnEditedFillChanged()
{
    StopListEditorDlg::OnEditedFillChanged();
    if (!GetFill() || !IsWindow())
        return;
    int current = -1;
    for (int i = 0; i < m_kind.GetCount(); ++i) {
        if (m_kind.GetItemData(i) == GetFill()->GetFillType())
            current = i;
    }
    m_kind.SetCurSel(current);
}

void GradientDlgBase::OnKindSelected()
{
    const KestoGDI::CFill* current = GetFill();
    const int index = m_kind.GetCurSel();
    if (!current || index < 0)
        return;
    const KestoGDI::FillKind* kind = KestoGDI::FillKinds::Find(static_cast<int>(m_kind.GetItemData(index)));
    RefPtr<KestoGDI::CFill> next =
        KestoGDI::CFill::CreateFromClass(current->IsTransparency() ? kind->transparencyClass : kind->fillClass);
    auto* withStops = dynamic_cast<KestoGDI::CFillWithStops*>(next.get());
    if (!withStops || next->GetFillType() == current->GetFillType())
        return;
    next->SetDefaultControls(GetObjectRect());
    withStops->SetColourIntPairs(GetEditedStops());
    next->SetAlpha(current->GetAlpha());
    next->SetBlendMode(current->GetBlendMode());
    Apply(*next);
}

} // namespace KestoTool
