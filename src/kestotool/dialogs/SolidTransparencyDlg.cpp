#include "kestotool/dialogs/SolidTransparencyDlg.h"

#include "kestotool/gdi/CMonoColour.h"
#include "kestotool/geometry/Rounding.h"
#include "kestotool/resources/ResourceIds.h"

namespace KestoTool {
namespace {

RefPtr<KestoGDI::CTransparencyFlat> CopyOf(const KestoGDI::CTransparencyFlat* t)
{
    return t ? KestoKernel::DynamicRefCast<KestoGDI::CTransparencyFlat>(t->Clone()) : nullptr;
}

// The 0..255 value of a flat transparency: its grey level.
int ValueOf(const KestoGDI::CTransparencyFlat& t)
{
    const auto* mono = dynamic_cast<const KestoGDI::CMonoColour*>(&t.GetColour());
    return mono ? mono->GetLevel() : t.GetColour().GetIntensity();
}

} // namespace

CSolidTransparencyDlg::CSolidTransparencyDlg(const KestoGDI::CTransparencyFlat* transparency,
                                             KestoPlatform::CWnd* parent)
    : KCResourceDialog(IDD_SOLID_TRANSPARENCY, parent), m_trans(CopyOf(transparency))
{
    if (!m_trans) {
        m_trans = KestoKernel::MakeRef<KestoGDI::CTransparencyFlat>();
        m_trans->SetColour(KestoGDI::CMonoColour(255));
    }
}

RefPtr<KestoGDI::CFill> CSolidTransparencyDlg::GetTrans() const
{
    return m_trans->Clone();
}

void CSolidTransparencyDlg::SetTrans(const KestoGDI::CTransparencyFlat* transparency)
{
    if (RefPtr<KestoGDI::CTransparencyFlat> copy = CopyOf(transparency))
        m_trans = std::move(copy);
}

void CSolidTransparencyDlg::UpdateTrans(const KestoGDI::CTransparencyFlat* transparency)
{
    SetTrans(transparency);
    m_preview.SetFill(m_trans.get());
}

int CSolidTransparencyDlg::ToPercentage(int value)
{
    return Kesto2D::AddHalfAndTruncate(value * 100.0 / 255.0);
}

int CSolidTransparencyDlg::FromPercentage(int percent)
{
    return Kesto2D::AddHalfAndTruncate(percent * 255.0 / 100.0);
}

const KestoPlatform::AFX_MSGMAP* CSolidTransparencyDlg::GetMessageMap() const
{
    static const KestoPlatform::AFX_MSGMAP_ENTRY entries[] = {
        KestoPlatform::MessageMap::Control<&CSolidTransparencyDlg::OnEditKillFocus>(IDC_SOLID_EDIT,
                                                                                    KestoPlatform::EN_KILLFOCUS),
    };
    static const KestoPlatform::AFX_MSGMAP map{KCResourceDialog::GetMessageMap(), entries};
    return &map;
}

void CSolidTransparencyDlg::DoDataExchange(KestoPlatform::CDataExchange* pDX)
{
    KCResourceDialog::DoDataExchange(pDX);
    KestoPlatform::DDX_Control(pDX, IDC_SOLID_PREVIEW, m_preview);
    KestoPlatform::DDX_Control(pDX, IDC_SOLID_EDIT, m_edit);
    KestoPlatform::DDX_Control(pDX, IDC_SOLID_SLIDER, m_slider);
    KestoPlatform::DDX_Text(pDX, IDC_SOLID_EDIT, m_percent);
    KestoPlatform::DDX_Control(pDX, IDC_SOLID_SPIN, m_spin);
}

bool CSolidTransparencyDlg::OnInitDialog()
{
    KCResourceDialog::OnInitDialog();
    m_preview.SetBounds(m_bounds);
    m_preview.SetFill(m_trans.get());
    m_percent = ToPercentage(ValueOf(*m_trans));
    m_slider.SetRange(0, 100);
    m_slider.SetPos(m_percent);
    m_spin.SetRange32(0, 100);
    m_spin.SetPos32(m_percent);
    m_edit.LimitText(3);
    UpdateData(false);
    return true;
}

void CSolidTransparencyDlg::ApplyPercent()
{
    m_trans->SetColour(KestoGDI::CMonoColour(FromPercentage(m_percent), 0));
    m_preview.SetFill(m_trans.get());
    UpdateData(false);
}

void CSolidTransparencyDlg::OnHScroll(int, int, KestoPlatform::CWnd*)
{
    m_percent = m_slider.GetPos();
    ApplyPercent();
}

void CSolidTransparencyDlg::OnEditKillFocus()
{
    UpdateData(true);
    // Only the upper bound is enforced: the 3-character limit and the spin's range keep
    // values small.
    if (m_percent > 100)
        m_percent = 100;
    m_slider.SetPos(m_percent);
    ApplyPercent();
}

void CSolidTransparencyDlg::OnVScroll(int, int, KestoPlatform::CWnd*)
{
    // The spin has already written its new value into the edit box.
    OnEditKillFocus();
}

} // namespace KestoTool
