#include "kestotool/ui/FillControl.h"

#include "kestotool/geometry/CoordinateRange.h"

#include <algorithm>
#include <array>

namespace KestoUI {

namespace {

// The fitted view leaves this share of the window free around the bounds, where the handles of
// radial rims and turned boxes often lie.
constexpr double kFitShare = 0.8;

constexpr std::array<int, 10> kZoomSteps{25, 50, 75, 100, 150, 200, 300, 400, 800, 1600};

} // namespace

std::span<const int> FillControl::ZoomSteps()
{
    return kZoomSteps;
}

void FillControl::SetFit(Fit fit)
{
    m_fit = fit;
    StateChanged();
}

void FillControl::SetZoom(int percent)
{
    m_zoom = std::clamp(percent, MinZoom, MaxZoom);
    StateChanged();
}

bool FillControl::ZoomIn()
{
    const auto next = std::upper_bound(kZoomSteps.begin(), kZoomSteps.end(), m_zoom);
    if (next == kZoomSteps.end())
        return false;
    SetZoom(*next);
    return true;
}

bool FillControl::ZoomOut()
{
    const auto below = std::lower_bound(kZoomSteps.begin(), kZoomSteps.end(), m_zoom);
    if (below == kZoomSteps.begin())
        return false;
    SetZoom(*std::prev(below));
    return true;
}

Kesto2D::K2DLtGeneral FillControl::GetViewTransform() const
{
    const KestoPlatform::CRect window = GetWindowRect();
    const KestoPlatform::CRect& bounds = GetBounds();
    const double w = std::max(1, window.Width());
    const double h = std::max(1, window.Height());
    const double bw = std::max(1, bounds.Width());
    const double bh = std::max(1, bounds.Height());
    double sx = w / bw;
    double sy = h / bh;
    if (m_fit == Fit::Uniform)
        sx = sy = std::min(sx, sy) * kFitShare * m_zoom / 100.0;
    const double cx = bounds.left + bw / 2;
    const double cy = bounds.top + bh / 2;
    return {sx, 0, 0, sy, w / 2 - cx * sx, h / 2 - cy * sy};
}

KestoPlatform::CPoint FillControl::ClientToDocument(KestoPlatform::CPoint client) const
{
    return Kesto2D::RoundToRange(GetViewTransform().GetInverse().ApplyTo(Kesto2D::K2DDblPoint(client.x, client.y)));
}

double FillControl::GetUnitsPerPixel() const
{
    return 1.0 / GetViewTransform().GetM11();
}

void FillControl::DrawOverlay(KestoGDI::IRenderTarget& target, const Kesto2D::K2DLtGeneral& view) const
{
    if (m_client)
        m_client->DrawOverlay(*this, target, view);
}

void FillControl::OnLButtonDown(unsigned flags, KestoPlatform::CPoint point)
{
    // A press while the control still has the mouse means its release was lost (the window
    // hidden mid-drag): the new press starts over.
    if (!IsWindowEnabled())
        return;
    m_pressed = true;
    if (m_client)
        m_client->OnControlPress(*this, ClientToDocument(point), flags);
}

void FillControl::OnMouseMove(unsigned flags, KestoPlatform::CPoint point)
{
    if (m_pressed && m_client)
        m_client->OnControlDrag(*this, ClientToDocument(point), flags);
}

void FillControl::OnLButtonUp(unsigned flags, KestoPlatform::CPoint point)
{
    if (!m_pressed)
        return;
    m_pressed = false;
    if (m_client)
        m_client->OnControlRelease(*this, ClientToDocument(point), flags);
}

} // namespace KestoUI
