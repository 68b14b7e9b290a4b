#include "kestotool/dialogs/GradientBar.h"

#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CTransparencyLinear.h"
#include "kestotool/gdi/RenderBrush.h"
#include "kestotool/gdi/RenderPen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace KestoTool {

namespace {

constexpr int kMarkerLine = GradientBar::Height * 3 / 4;

} // namespace

GradientBar::GradientBar()
{
    SetClient(this);
    SetFit(Fit::Stretch);
    // A margin either side, so that the end stops' markers show whole.
    SetBounds(CRect(-Width / 30, 0, Width + Width / 30, Height));
}

void GradientBar::SetStops(const KestoGDI::ColourIntPairs& stops, bool transparency, int maxStops)
{
    m_stops = stops;
    m_stops.Sort();
    m_transparency = transparency;
    m_maxStops = maxStops;
    m_selected = std::clamp(m_selected, 0, std::max(0, m_stops.GetSize() - 1));
    ShowStops();
}

void GradientBar::Select(int index)
{
    if (index < 0 || index >= m_stops.GetSize())
        return;
    m_selected = index;
    StateChanged();
}

int GradientBar::StopAt(int position) const
{
    const double reach = MarkerReach / std::max(1e-9, GetViewTransform().GetM11());
    int best = -1;
    double bestDistance = reach;
    for (int i = 0; i < m_stops.GetSize(); ++i) {
        const double distance = std::abs(m_stops.GetAt(i)->GetValue() - position);
        if (distance <= bestDistance) {
            best = i;
            bestDistance = distance;
        }
    }
    return best;
}

void GradientBar::ShowStops()
{
    RefPtr<KestoGDI::CFillWithStops> bar;
    if (m_transparency)
        bar = KestoKernel::MakeRef<KestoGDI::CTransparencyLinear>();
    else
        bar = KestoKernel::MakeRef<KestoGDI::CFillLinear>();
    const std::array<Kesto2D::K2DDblPoint, 2> line{Kesto2D::K2DDblPoint(0, Height / 2),
                                                   Kesto2D::K2DDblPoint(Width, Height / 2)};
    bar->SetControlPoints(line);
    if (m_stops.GetSize() >= bar->GetMinStops())
        bar->SetColourIntPairs(m_stops);
    SetFill(bar.get());
}

void GradientBar::MoveSelected(int position)
{
    m_selected = m_stops.Move(m_selected, std::clamp(position, 0, Width));
    ShowStops();
}

void GradientBar::OnControlPress(KestoUI::FillControl&, CPoint point, unsigned)
{
    if (m_stops.IsEmpty())
        return;
    const int hit = StopAt(point.x);
    if (hit != -1) {
        m_selected = hit;
    } else if (m_maxStops < 0 || m_stops.GetSize() < m_maxStops) {
        const int position = std::clamp(point.x, 0, Width);
        const std::unique_ptr<KestoGDI::CColour> colour = m_stops.MakeColourForValue(position);
        m_selected = m_stops.Add(*colour, position);
        MoveSelected(position);
        if (onStopsChanged)
            onStopsChanged(false);
    } else {
        return;
    }
    m_dragging = true;
    StateChanged();
}

void GradientBar::OnControlDrag(KestoUI::FillControl&, CPoint point, unsigned)
{
    if (!m_dragging || m_stops.GetAt(m_selected)->GetValue() == std::clamp(point.x, 0, Width))
        return;
    MoveSelected(point.x);
    if (onStopsChanged)
        onStopsChanged(false);
}

void GradientBar::OnControlRelease(KestoUI::FillControl&, CPoint, unsigned)
{
    if (!std::exchange(m_dragging, false))
        return;
    if (onStopsChanged)
        onStopsChanged(true);
}

void GradientBar::DrawOverlay(const KestoUI::FillControl&, KestoGDI::IRenderTarget& target,
                              const Kesto2D::K2DLtGeneral& view) const
{
    const int radius = static_cast<int>(std::lround(target.ScalePixels(MarkerRadius)));
    for (int i = 0; i < m_stops.GetSize(); ++i) {
        const KestoGDI::CColourIntPair& stop = *m_stops.GetAt(i);
        const CPoint at = view.ApplyTo(CPoint(stop.GetValue(), kMarkerLine));
        const bool selected = i == m_selected;
        const KestoGDI::RenderPen ring{selected ? 0x0000C0u : 0x202020u, 255, selected ? 3.0 : 1.0};
        target.DrawDisc(at, radius, KestoGDI::RenderBrush{stop.GetColour().GetRGB(), 255}, ring);
    }
}

} // namespace KestoTool
