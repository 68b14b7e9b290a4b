#include "kestotool/dialogs/PlasmaFillDlg.h"

#include "kestotool/geometry/Rounding.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace KestoTool {

CPlasmaFillDlg::CPlasmaFillDlg(IDocumentEx* document, const KestoGDI::CFillFractal* fill, const CRect& objectRect,
                               KestoPlatform::CWnd* parent)
    : StopListEditorDlg(IDD_PLASMA_FILL, document, fill, objectRect, parent),
      m_seedSource([] { return std::random_device{}(); })
{
}

const KestoPlatform::AFX_MSGMAP* CPlasmaFillDlg::GetMessageMap() const
{
    using KestoPlatform::MessageMap::Control;
    static const KestoPlatform::AFX_MSGMAP_ENTRY entries[] = {
        Control<&CPlasmaFillDlg::OnNewSeed>(IDC_PLASMA_NEW_SEED, KestoPlatform::BN_CLICKED),
        Control<&CPlasmaFillDlg::OnInvert>(IDC_PLASMA_INVERT, KestoPlatform::BN_CLICKED),
        Control<&CPlasmaFillDlg::OnSeedEntered>(IDC_PLASMA_SEED, KestoPlatform::EN_KILLFOCUS),
        Control<&CPlasmaFillDlg::OnResolutionEntered>(IDC_PLASMA_RESOLUTION, KestoPlatform::EN_KILLFOCUS),
    };
    static const KestoPlatform::AFX_MSGMAP map{StopListEditorDlg::GetMessageMap(), entries};
    return &map;
}

void CPlasmaFillDlg::DoDataExchange(KestoPlatform::CDataExchange* pDX)
{
    StopListEditorDlg::DoDataExchange(pDX);
    KestoPlatform::DDX_Control(pDX, IDC_PLASMA_SEED, m_seed);
    KestoPlatform::DDX_Control(pDX, IDC_PLASMA_RESOLUTION, m_resolution);
    KestoPlatform::DDX_Control(pDX, IDC_PLASMA_GRAIN, m_grain);
    KestoPlatform::DDX_Control(pDX, IDC_PLASMA_INVERT, m_invert);
}

bool CPlasmaFillDlg::OnInitDialog()
{
    m_grain.SetRange(0, 100);
    return StopListEditorDlg::OnInitDialog();
}

void CPlasmaFillDlg::OnEditedFillChanged()
{
    StopListEditorDlg::OnEditedFillChanged();
    const auto* plasma = dynamic_cast<const KestoGDI::CFillFractal*>(GetFill());
    if (!plasma || !IsWindow())
        return;
    ShowNumber(m_seed, plasma->GetSeed());
    ShowNumber(m_resolution, plasma->GetResolution());
    m_grain.SetPos(plasma->GetGrain());
    m_invert.SetCheck(plasma->GetTileInverted());
}

void CPlasmaFillDlg::Change(const std::function<void(KestoGDI::CFillFractal&)>& change)
{
    const KestoGDI::CFill* current = GetFill();
    RefPtr<KestoGDI::CFill> next = current ? current->Clone() : nullptr;
    auto* plasma = dynamic_cast<KestoGDI::CFillFractal*>(next.get());
    if (!plasma) {
        OnEditedFillChanged();
        return;
    }
    change(*plasma);
    Apply(*plasma);
}

void CPlasmaFillDlg::OnNewSeed()
{
    const unsigned seed = m_seedSource();
    Change([seed](KestoGDI::CFillFractal& plasma) { plasma.SetSeed(seed); });
}

void CPlasmaFillDlg::OnSeedEntered()
{
    // Seeds are whole numbers 0 .. 2^32 - 1; anything else shows the seed there was.
    const std::optional<double> seed = NumberIn(m_seed);
    if (!seed || *seed < 0 || *seed > 4294967295.0 || *seed != std::floor(*seed)) {
        OnEditedFillChanged();
        return;
    }
    Change([value = static_cast<unsigned>(*seed)](KestoGDI::CFillFractal& plasma) { plasma.SetSeed(value); });
}

void CPlasmaFillDlg::OnResolutionEntered()
{
    const std::optional<double> resolution = NumberIn(m_resolution);
    if (!resolution) {
        OnEditedFillChanged();
        return;
    }
    const int cells = Kesto2D::RoundHalfAwayFromZero(
        std::clamp<double>(*resolution, KestoGDI::CFillFractal::MinResolution, KestoGDI::CFillFractal::MaxResolution));
    Change([cells](KestoGDI::CFillFractal& plasma) { plasma.SetResolution(cells); });
}

void CPlasmaFillDlg::OnInvert()
{
    const bool inverted = m_invert.GetCheck();
    Change([inverted](KestoGDI::CFillFractal& plasma) { plasma.SetTileInverted(inverted); });
}

void CPlasmaFillDlg::OnHScroll(int, int, KestoPlatform::CWnd* bar)
{
    if (bar != &m_grain)
        return;
    const int grain = m_grain.GetPos();
    Change([grain](KestoGDI::CFillFractal& plasma) { plasma.SetGrain(grain); });
}

} // namespace KestoTool
