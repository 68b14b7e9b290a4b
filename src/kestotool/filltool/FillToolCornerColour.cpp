#include "kestotool/filltool/FillToolCornerColour.h"

#include "kestotool/gdi/CFillFourColour.h"
#include "kestotool/gdi/CFillThreeColour.h"
#include "kestotool/geometry/K2DGeometry.h"
#include "kestotool/kernel/VerifyReporter.h"

#include <algorithm>

namespace KestoTool {

namespace {

// The numbers this file reports its broken preconditions with.
constexpr int kReportDragStartWithoutFill = 41;
constexpr int kReportDragWithoutCorner = 98;
constexpr int kReportDrawWithoutFill = 106;
constexpr int kReportFillRectWithoutFill = 126;
constexpr int kReportSizeWithoutFill = 157;
constexpr int kReportBBoxWithoutFill = 169;

template <class Corners>
CPoint& Corner(Corners& c, int k)
{
    return k == 0 ? c.p0 : k == 1 ? c.p1 : k == 2 ? c.p2 : c.p3;
}

void SetControlsOf(KestoGDI::CFillThreeColour& fill, const CPoint (&p)[4])
{
    fill.SetControls(K2DDblPoint(p[0]), K2DDblPoint(p[1]), K2DDblPoint(p[2]));
}

void SetControlsOf(KestoGDI::CFillFourColour& fill, const CPoint (&p)[4])
{
    fill.SetControls(K2DDblPoint(p[0]), K2DDblPoint(p[1]), K2DDblPoint(p[2]), K2DDblPoint(p[3]));
}

} // namespace

template <class Fill>
FillToolCornerColour<Fill>::FillToolCornerColour(const CFill* fill, IToolSite* site, const char* module,
                                                 std::initializer_list<int> handleOrder, std::array<Side, 2> measured)
    : FillToolGradient(fill, site), m_module(module), m_count(static_cast<int>(handleOrder.size())),
      m_measured(measured)
{
    std::copy(handleOrder.begin(), handleOrder.end(), m_handleOrder.begin());
}

template <class Fill>
void FillToolCornerColour<Fill>::ReportNoFill(int line) const
{
    KestoKernel::VerifyFailed("KestoTool", m_module, line, "the tool has no fill: give it one");
}

template <class Fill>
void FillToolCornerColour<Fill>::ReportNoCorner() const
{
    KestoKernel::VerifyFailed("KestoTool", m_module, kReportDragWithoutCorner,
                              "a drag needs a corner handle as the current node");
}

template <class Fill>
bool FillToolCornerColour<Fill>::GetCorners(const CFill* fill, Corners& corners) const
{
    const Fill* placed = FillOfKind<Fill>(fill);
    if (!placed)
        return false;
    corners = {};
    for (int k = 0; k < m_count; ++k)
        Corner(corners, k) = placed->GetControlPoint(k).Round();
    return true;
}

template <class Fill>
void FillToolCornerColour<Fill>::SetCorners(const Corners& c)
{
    if (auto* placed = dynamic_cast<Fill*>(GetWorkingFill())) {
        const CPoint points[4] = {c.p0, c.p1, c.p2, c.p3};
        SetControlsOf(*placed, points);
    }
}

template <class Fill>
void FillToolCornerColour<Fill>::OnDragStart(CPoint& point, unsigned int flags)
{
    if (!GetFill()) {
        ReportNoFill(kReportDragStartWithoutFill);
        return;
    }
    FillTool::OnDragStart(point, flags);
    GetCorners(nullptr, m_atPress);
    SetCurrentNode(IndexFromPoint(point));
}

template <class Fill>
void FillToolCornerColour<Fill>::BuildHandleScene(HandleScene& scene) const
{
    if (!GetFill()) {
        ReportNoFill(kReportDrawWithoutFill);
        return;
    }
    AddCorners(scene);
}

template <class Fill>
CRect FillToolCornerColour<Fill>::GetFillRect(const CFill* fill)
{
    Corners c;
    if (!fill && !GetFill()) {
        ReportNoFill(kReportFillRectWithoutFill);
        return {};
    }
    if (!GetCorners(fill, c))
        return {};
    K2DArrayPoint corners;
    for (int k = 0; k < m_count; ++k)
        corners.Add(Corner(c, k));
    return corners.GetBBox();
}

template <class Fill>
void FillToolCornerColour<Fill>::BaseGetHandles(K2DArrayPoint* handles) const
{
    Corners c;
    if (!GetCorners(nullptr, c))
        return;
    for (int k = 0; k < m_count; ++k)
        handles->Add(Corner(c, m_handleOrder[static_cast<std::size_t>(k)]));
}

template <class Fill>
bool FillToolCornerColour<Fill>::CheckSize() const
{
    Corners c;
    if (!GetFill()) {
        ReportNoFill(kReportSizeWithoutFill);
        return false;
    }
    if (!GetCorners(nullptr, c))
        return false;
    return std::all_of(m_measured.begin(), m_measured.end(), [&c](const Side& side) {
        return Kesto2D::K2DGeometry::IDist(Corner(c, side[0]), Corner(c, side[1])) >= 50;
    });
}

template <class Fill>
K2DArrayPoint FillToolCornerColour<Fill>::GetEffectiveBBox(const CFill* fill)
{
    Corners c;
    if (!fill && !GetFill()) {
        ReportNoFill(kReportBBoxWithoutFill);
        return {};
    }
    if (!GetCorners(fill, c))
        return {};
    return Outline(c);
}

template class FillToolCornerColour<KestoGDI::CFillThreeColour>;
template class FillToolCornerColour<KestoGDI::CFillFourColour>;

} // namespace KestoTool
