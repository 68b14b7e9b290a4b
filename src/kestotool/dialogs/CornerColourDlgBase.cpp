#include "kestotool/dialogs/CornerColourDlgBase.h"

#include "kestotool/dialogs/SolidTransparencyDlg.h"
#include "kestotool/filltool/FillToolImages.h"
#include "kestotool/gdi/CFillWithStops.h"
#include "kestotool/gdi/CMonoColour.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/geometry/Rounding.h"
#include "kestotool/platform/WindowBackend.h"
#include "kestotool/resources/ResourceIds.h"

#include <algorithm>

namespace KestoTool {

namespace {

const KestoGDI::CFillWithStops* WithStops(const KestoGDI::CFill* fill)
{
    return dynamic_cast<const KestoGDI::CFillWithStops*>(fill);
}

} // namespace

void CornerColourDlgBase::DoDataExchange(KestoPlatform::CDataExchange* pDX)
{
    ExpandingFillPreviewDlg::DoDataExchange(pDX);
    for (int i = 0; i < MaxCorners; ++i) {
        const auto at = static_cast<std::size_t>(i);
        KestoPlatform::DDX_Control(pDX, IDC_CORNER_LABEL_FIRST + i, m_labels[at]);
        KestoPlatform::DDX_Control(pDX, IDC_CORNER_COLOUR_FIRST + i, m_colours[at]);
        KestoPlatform::DDX_Control(pDX, IDC_CORNER_LEVEL_FIRST + i, m_levels[at]);
    }
}

int CornerColourDlgBase::CornerCount() const
{
    const KestoGDI::CFillWithStops* fill = WithStops(GetCurrentFill());
    return fill ? std::min(fill->GetColourIntPairs().GetSize(), static_cast<int>(MaxCorners)) : 0;
}

bool CornerColourDlgBase::OnInitDialog()
{
    ExpandingFillPreviewDlg::OnInitDialog();
    const bool transparency = GetCurrentFill() && GetCurrentFill()->IsTransparency();
    for (int i = 0; i < MaxCorners; ++i) {
        const auto at = static_cast<std::size_t>(i);
        const bool corner = i < CornerCount();
        m_labels[at].ShowWindow(corner ? KestoPlatform::SW_SHOW : KestoPlatform::SW_HIDE);
        if (transparency)
            m_labels[at].SetWindowText(m_labels[at].GetWindowText() + L" (%)");
        m_colours[at].ShowWindow(corner && !transparency ? KestoPlatform::SW_SHOW : KestoPlatform::SW_HIDE);
        m_levels[at].ShowWindow(corner && transparency ? KestoPlatform::SW_SHOW : KestoPlatform::SW_HIDE);
    }
    OnEditedFillChanged();
    return true;
}

void CornerColourDlgBase::OnEditedFillChanged()
{
    const KestoGDI::CFillWithStops* fill = WithStops(GetCurrentFill());
    if (!fill || !IsWindow())
        return;
    for (int i = 0; i < CornerCount(); ++i) {
        const KestoGDI::CColour& colour = fill->GetColourIntPairs().GetAt(i)->GetColour();
        const auto at = static_cast<std::size_t>(i);
        m_colours[at].SetImage(SwatchImage(colour.GetRGB(), SwatchSide));
        if (const auto* mono = dynamic_cast<const KestoGDI::CMonoColour*>(&colour))
            ShowNumber(m_levels[at], CSolidTransparencyDlg::ToPercentage(mono->GetLevel()));
    }
}

bool CornerColourDlgBase::OnCommand(unsigned param, KestoPlatform::CWnd* control)
{
    const int id = KestoPlatform::CommandId(param);
    const int code = KestoPlatform::CommandCode(param);
    if (code == KestoPlatform::BN_CLICKED && id >= IDC_CORNER_COLOUR_FIRST &&
        id < IDC_CORNER_COLOUR_FIRST + MaxCorners) {
        OnColour(id - IDC_CORNER_COLOUR_FIRST);
        return true;
    }
    if (code == KestoPlatform::EN_KILLFOCUS && id >= IDC_CORNER_LEVEL_FIRST &&
        id < IDC_CORNER_LEVEL_FIRST + MaxCorners) {
        OnLevelEntered(id - IDC_CORNER_LEVEL_FIRST);
        return true;
    }
    return ExpandingFillPreviewDlg::OnCommand(param, control);
}

void CornerColourDlgBase::Recolour(int corner, const KestoGDI::CColour& colour)
{
    const KestoGDI::CFill* current = GetCurrentFill();
    if (!current || corner >= CornerCount())
        return;
    RefPtr<KestoGDI::CFill> next = current->Clone();
    auto& withStops = static_cast<KestoGDI::CFillWithStops&>(*next);
    KestoGDI::ColourIntPairs stops = withStops.GetColourIntPairs();
    stops.GetAt(corner)->SetColour(colour);
    withStops.SetColourIntPairs(stops);
    UpdateFill(next.get(), nullptr);
}

void CornerColourDlgBase::OnColour(int corner)
{
    const KestoGDI::CFillWithStops* fill = WithStops(GetCurrentFill());
    if (!fill || corner >= CornerCount())
        return;
    const KestoGDI::CColour& colour = fill->GetColourIntPairs().GetAt(corner)->GetColour();
    KestoPlatform::COLORREF chosen = 0;
    if (KestoPlatform::Backend().ChooseColour(this, colour.GetRGB(), &chosen))
        Recolour(corner, KestoGDI::CRGBColour(chosen, nullptr, 0, static_cast<short>(colour.GetAlpha())));
}

void CornerColourDlgBase::OnLevelEntered(int corner)
{
    const std::optional<double> percent = NumberIn(m_levels[static_cast<std::size_t>(corner)]);
    if (!percent) {
        OnEditedFillChanged();
        return;
    }
    const int level =
        CSolidTransparencyDlg::FromPercentage(Kesto2D::RoundHalfAwayFromZero(std::clamp(*percent, 0.0, 100.0)));
    Recolour(corner, KestoGDI::CMonoColour(level));
}

} // namespace KestoTool
