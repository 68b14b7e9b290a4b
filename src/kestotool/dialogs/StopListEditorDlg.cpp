#include "kestotool/dialogs/StopListEditorDlg.h"

#include "kestotool/dialogs/SolidTransparencyDlg.h"
#include "kestotool/filltool/FillToolImages.h"
#include "kestotool/gdi/CFillWithStops.h"
#include "kestotool/gdi/CMonoColour.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/geometry/KCAngle.h"
#include "kestotool/geometry/Rounding.h"
#include "kestotool/platform/WindowBackend.h"
#include "kestotool/resources/ResourceIds.h"
#include "kestotool/tool/Module.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace KestoTool {

namespace {

// How a stop's level reads in the level box: a transparency's grey level is how clear it is, a
// fill's alpha how opaque.
int LevelOf(const KestoGDI::CColour& colour, bool transparency)
{
    if (!transparency)
        return colour.GetAlpha();
    const auto* mono = dynamic_cast<const KestoGDI::CMonoColour*>(&colour);
    return mono ? mono->GetLevel() : colour.GetIntensity();
}

} // namespace

StopListEditorDlg::StopListEditorDlg(int templateId, IDocumentEx* document, const KestoGDI::CFill* fill,
                                     const CRect& objectRect, KestoPlatform::CWnd* parent)
    : ExpandingFillPreviewDlg(templateId, document, fill, objectRect, parent, CommitRule::TakeStops)
{
    m_bar.onStopsChanged = [this](bool) { ApplyStops(m_bar.GetStops()); };
}

double StopListEditorDlg::AngleOf(const KestoGDI::CFill& fill)
{
    if (fill.GetControlCount() < 2)
        return 0;
    const Kesto2D::K2DDblPoint a = fill.GetControlPoint(0);
    const Kesto2D::K2DDblPoint b = fill.GetControlPoint(1);
    return Kesto2D::KCAngle::DirectionOf(b.x - a.x, b.y - a.y).Value() / 100.0;
}

RefPtr<KestoGDI::CFill> StopListEditorDlg::WithAngle(const KestoGDI::CFill& fill, double degrees)
{
    RefPtr<KestoGDI::CFill> turned = fill.Clone();
    if (fill.GetControlCount() < 2)
        return turned;
    const Kesto2D::KCAngle by(Kesto2D::RoundHalfAwayFromZero(std::fmod(degrees - AngleOf(fill), 360.0) * 100.0));
    const Kesto2D::K2DLtGeneral turn = Kesto2D::K2DLtGeneral::About(fill.GetControlPoint(0), Kesto2D::K2DLtRotate(by));
    std::vector<Kesto2D::K2DDblPoint> points;
    for (int i = 0; i < fill.GetControlCount(); ++i)
        points.push_back(i == 0 ? fill.GetControlPoint(0) : turn.ApplyTo(fill.GetControlPoint(i)));
    turned->SetControlPoints(points);
    return turned;
}

const KestoPlatform::AFX_MSGMAP* StopListEditorDlg::GetMessageMap() const
{
    using KestoPlatform::MessageMap::Control;
    static const KestoPlatform::AFX_MSGMAP_ENTRY entries[] = {
        Control<&StopListEditorDlg::OnDelete>(IDC_STOP_DELETE, KestoPlatform::BN_CLICKED),
        Control<&StopListEditorDlg::OnColour>(IDC_STOP_COLOUR, KestoPlatform::BN_CLICKED),
        Control<&StopListEditorDlg::OnPositionEntered>(IDC_STOP_POSITION, KestoPlatform::EN_KILLFOCUS),
        Control<&StopListEditorDlg::OnLevelEntered>(IDC_STOP_LEVEL, KestoPlatform::EN_KILLFOCUS),
        Control<&StopListEditorDlg::OnAngleEntered>(IDC_FILL_ANGLE, KestoPlatform::EN_KILLFOCUS),
    };
    static const KestoPlatform::AFX_MSGMAP map{ExpandingFillPreviewDlg::GetMessageMap(), entries};
    return &map;
}

void StopListEditorDlg::DoDataExchange(KestoPlatform::CDataExchange* pDX)
{
    ExpandingFillPreviewDlg::DoDataExchange(pDX);
    KestoPlatform::DDX_Control(pDX, IDC_GRADIENT_BAR, m_bar);
    KestoPlatform::DDX_Control(pDX, IDC_STOP_POSITION, m_position);
    KestoPlatform::DDX_Control(pDX, IDC_STOP_LEVEL, m_level);
    KestoPlatform::DDX_Control(pDX, IDC_FILL_ANGLE, m_angle);
    KestoPlatform::DDX_Control(pDX, IDC_STOP_DELETE, m_delete);
    KestoPlatform::DDX_Control(pDX, IDC_STOP_COLOUR, m_colour);
    KestoPlatform::DDX_Control(pDX, IDC_STOP_LEVEL_LABEL, m_levelLabel);
}

bool StopListEditorDlg::OnInitDialog()
{
    ExpandingFillPreviewDlg::OnInitDialog();
    m_levelLabel.SetWindowText(Module::Get().LoadDialogText(IsTransparency() ? L"Transparency" : L"Opacity"));
    // A transparency's stops are levels only.
    m_colour.ShowWindow(IsTransparency() ? KestoPlatform::SW_HIDE : KestoPlatform::SW_SHOW);
    return true;
}

bool StopListEditorDlg::IsTransparency() const
{
    return GetFill() && GetFill()->IsTransparency();
}

void StopListEditorDlg::OnEditedFillChanged()
{
    const auto* fill = dynamic_cast<const KestoGDI::CFillWithStops*>(GetFill());
    if (!fill || !IsWindow())
        return;
    m_bar.SetStops(GetEditedStops(), fill->IsTransparency(), fill->GetMaxStops());
    m_delete.EnableWindow(GetEditedStops().GetSize() > fill->GetMinStops());
    ShowNumber(m_angle, AngleOf(*fill));
    ShowSelectedStop();
}

void StopListEditorDlg::ShowSelectedStop()
{
    const KestoGDI::CColourIntPair* stop = m_bar.GetStops().GetAt(m_bar.GetSelected());
    if (!stop)
        return;
    ShowNumber(m_position, stop->GetValue() / 100.0);
    ShowNumber(m_level, CSolidTransparencyDlg::ToPercentage(LevelOf(stop->GetColour(), IsTransparency())));
    m_colour.SetImage(SwatchImage(stop->GetColour().GetRGB(), SwatchSide));
}

void StopListEditorDlg::Apply(const KestoGDI::CFill& fill)
{
    SetEditedFill(&fill);
}

void StopListEditorDlg::ApplyStops(const KestoGDI::ColourIntPairs& stops)
{
    const KestoGDI::CFill* current = GetFill();
    if (!current)
        return;
    RefPtr<KestoGDI::CFill> next = current->Clone();
    KestoGDI::ColourIntPairs sorted = stops;
    sorted.Sort();
    auto* withStops = dynamic_cast<KestoGDI::CFillWithStops*>(next.get());
    if (!withStops || !withStops->SetColourIntPairs(sorted))
        return;
    Apply(*next);
}

void StopListEditorDlg::OnDelete()
{
    KestoGDI::ColourIntPairs stops = m_bar.GetStops();
    stops.Delete(m_bar.GetSelected());
    ApplyStops(stops);
}

void StopListEditorDlg::OnColour()
{
    KestoGDI::ColourIntPairs stops = m_bar.GetStops();
    KestoGDI::CColourIntPair* stop = stops.GetAt(m_bar.GetSelected());
    KestoPlatform::COLORREF chosen = 0;
    if (!stop || !KestoPlatform::Backend().ChooseColour(this, stop->GetColour().GetRGB(), &chosen))
        return;
    stop->SetColour(KestoGDI::CRGBColour(chosen, nullptr, 0, static_cast<short>(stop->GetColour().GetAlpha())));
    ApplyStops(stops);
}

void StopListEditorDlg::OnPositionEntered()
{
    const std::optional<double> percent = NumberIn(m_position);
    KestoGDI::ColourIntPairs stops = m_bar.GetStops();
    if (!percent) {
        ShowSelectedStop();
        return;
    }
    const int position = Kesto2D::RoundHalfAwayFromZero(std::clamp(*percent, 0.0, 100.0) * 100.0);
    m_bar.Select(stops.Move(m_bar.GetSelected(), position));
    ApplyStops(stops);
}

void StopListEditorDlg::OnLevelEntered()
{
    const std::optional<double> percent = NumberIn(m_level);
    KestoGDI::ColourIntPairs stops = m_bar.GetStops();
    KestoGDI::CColourIntPair* stop = stops.GetAt(m_bar.GetSelected());
    if (!percent || !stop) {
        ShowSelectedStop();
        return;
    }
    const int level =
        CSolidTransparencyDlg::FromPercentage(Kesto2D::RoundHalfAwayFromZero(std::clamp(*percent, 0.0, 100.0)));
    if (IsTransparency()) {
        stop->SetColour(KestoGDI::CMonoColour(level));
    } else {
        std::unique_ptr<KestoGDI::CColour> colour = stop->GetColour().Clone();
        colour->SetAlpha(level);
        stop->SetColour(*colour);
    }
    ApplyStops(stops);
}

void StopListEditorDlg::OnAngleEntered()
{
    const std::optional<double> degrees = NumberIn(m_angle);
    if (!degrees || !GetFill()) {
        OnEditedFillChanged();
        return;
    }
    Apply(*WithAngle(*GetFill(), *degrees));
}

} // namespace KestoTool
