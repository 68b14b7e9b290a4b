#include "kestotool/dialogs/VectorFillDlgBase.h"

#include "kestotool/filltool/FillToolVector.h"
#include "kestotool/resources/ResourceIds.h"
#include "kestotool/tool/Module.h"

namespace KestoTool {

namespace {

constexpr int IDS_SCALING_MODE = 25495;
constexpr int IDS_SPACING_MODE = 25496;

} // namespace

CVectorFillDlgBase::CVectorFillDlgBase(IDocumentEx* document, const KestoGDI::CFillVector* fill,
                                       const CRect& objectRect, KestoPlatform::CWnd* parent, int templateId,
                                       const Kesto2D::K2DLtGeneral& objectTransform)
    : ExpandingFillPreviewDlg(templateId, document, fill, objectRect, parent, CommitRule::ToolOnly),
      m_objectTransform(objectTransform)
{
    if (FillToolVector* tool = VectorTool())
        tool->SetDrawObjectTransform(m_objectTransform);
}

const KestoPlatform::AFX_MSGMAP* CVectorFillDlgBase::GetMessageMap() const
{
    using KestoPlatform::MessageMap::Control;
    static const KestoPlatform::AFX_MSGMAP_ENTRY entries[] = {
        Control<&CVectorFillDlgBase::OnMode>(IDC_VECTOR_MODE, KestoPlatform::BN_CLICKED),
        Control<&CVectorFillDlgBase::OnReset>(IDC_VECTOR_RESET, KestoPlatform::BN_CLICKED),
        Control<&CVectorFillDlgBase::OnTransform>(IDC_VECTOR_TRANSFORM, KestoPlatform::BN_CLICKED),
    };
    static const KestoPlatform::AFX_MSGMAP map{ExpandingFillPreviewDlg::GetMessageMap(), entries};
    return &map;
}

void CVectorFillDlgBase::DoDataExchange(KestoPlatform::CDataExchange* pDX)
{
    ExpandingFillPreviewDlg::DoDataExchange(pDX);
    KestoPlatform::DDX_Control(pDX, IDC_VECTOR_MODE, m_mode);
    KestoPlatform::DDX_Control(pDX, IDC_VECTOR_TRANSFORM, m_transform);
}

bool CVectorFillDlgBase::OnInitDialog()
{
    ExpandingFillPreviewDlg::OnInitDialog();
    const bool usable = VectorTool() != nullptr;
    for (const int id : {IDC_VECTOR_MODE, IDC_VECTOR_RESET, IDC_VECTOR_TRANSFORM}) {
        if (KestoPlatform::CWnd* item = GetDlgItem(id))
            item->EnableWindow(usable);
    }
    return true;
}

FillToolVector* CVectorFillDlgBase::VectorTool() const
{
    return dynamic_cast<FillToolVector*>(GetTool());
}

void CVectorFillDlgBase::OnEditedFillChanged()
{
    const FillToolVector* tool = VectorTool();
    if (!tool || !IsWindow())
        return;
    m_mode.SetWindowText(Module::Get().LoadString(
        tool->GetControlBoxMode() == FillToolVector::ScalingMode ? IDS_SCALING_MODE : IDS_SPACING_MODE));
    const auto* fill = dynamic_cast<const KestoGDI::CFillVector*>(GetCurrentFill());
    m_transform.SetCheck(fill && !fill->ScaleRotateIndependentOfObject());
}

void CVectorFillDlgBase::ShowToolFill()
{
    if (FillToolVector* tool = VectorTool())
        UpdateFill(tool->GetFill(), nullptr);
}

void CVectorFillDlgBase::OnMode()
{
    if (FillToolVector* tool = VectorTool())
        tool->OnFillControlBoxModeClicked();
    ShowToolFill();
}

void CVectorFillDlgBase::OnReset()
{
    if (FillToolVector* tool = VectorTool())
        tool->OnFillControlResetHandles();
    ShowToolFill();
}

void CVectorFillDlgBase::OnTransform()
{
    if (FillToolVector* tool = VectorTool())
        tool->OnTransformWithObject(m_transform.GetCheck());
    ShowToolFill();
}

} // namespace KestoTool
