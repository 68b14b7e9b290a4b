#include "kestotool/filltool/FillToolVector.h"

#include "kestotool/filltool/FillCommands.h"
#include "kestotool/geometry/CoordinateRange.h"
#include "kestotool/geometry/Rounding.h"
#include "kestotool/platform/CCmdUI.h"

#include <cmath>
#include <cstdlib>
#include <numbers>

namespace KestoTool {

KESTO_IMPLEMENT_DYNAMIC(FillToolVector, FillToolBitmap)

namespace {

// The numbers this file reports its broken preconditions with.
constexpr int kReportHandlesWithoutFill = 109;
constexpr int kReportDragStartWithoutFill = 164;
constexpr int kReportDragEndWithoutFill = 337;
constexpr int kReportDrawWithoutFill = 357;
constexpr int kReportResetWithoutFill = 427;
constexpr int kReportTransformWithoutFill = 444;

// The tile's handles place it; they show no colour of their own.
constexpr unsigned long kHandleColour = 0xFFFFFF;
// Ctrl turns a rotation handle in steps of this many hundredths of a degree.
constexpr int kRotationStep = 1500;

K2DDblPoint ToDouble(const CPoint& p)
{
    return K2DDblPoint(p);
}

// v rounded into the coordinate range.
CPoint RoundVector(const Kesto2D::K2DVector& v)
{
    return Kesto2D::SaturateToRange(K2DDblPoint(v.dx, v.dy)).Round();
}

} // namespace

void FillToolVector::GetCurrentControls(const CFillVector* fill, ControlInstance& out, bool raw) const
{
    if (!fill)
        return;
    if (raw) {
        const CFillVector::Box box = fill->GetRawBox();
        out = {box.origin, box.xEnd, box.yEnd};
        if (!fill->IsAlreadyScaled())
            fill->ScaleControlBoxToMetaInstance(out.origin, out.xEnd, out.yEnd, false, false);
        return;
    }
    const CFillVector::Box box = fill->GetPlacedBox();
    out = {GetTransformedPointFromFill(fill, box.origin), GetTransformedPointFromFill(fill, box.xEnd),
           GetTransformedPointFromFill(fill, box.yEnd)};
}

K2DDblPoint FillToolVector::GetTransformedPointFromFill(const CFillVector* fill, const K2DDblPoint& p,
                                                        const K2DDblPoint& offset) const
{
    const K2DDblPoint moved(p.x + offset.x, p.y + offset.y);
    return fill ? fill->ToSpread(moved) : moved;
}

double FillToolVector::GetZeroDegrees(const CFillVector* fill) const
{
    return fill && fill->VFlipped() ? std::numbers::pi / 2 : -std::numbers::pi / 2;
}

void FillToolVector::CalculateTileHandles(ControlInstance& out, const ControlInstance& in, const VectorPair& atStart,
                                          const VectorPair& now)
{
    const double before = atStart.axis.Length();
    const Kesto2D::K2DVector spacing = before > 0 ? atStart.spacing * (now.axis.Length() / before) : atStart.spacing;
    const Kesto2D::K2DVector move = now.axis + spacing;
    out = {in.origin + move, in.xEnd + move, in.yEnd + move};
}

bool FillToolVector::GetPoints(const CFill* fill, Points& points) const
{
    const CFillVector* vector = FillOfKind<CFillVector>(fill);
    if (!vector)
        return false;
    ControlInstance placed;
    GetCurrentControls(vector, placed, false);
    points = {placed.origin.Round(), placed.xEnd.Round(), placed.yEnd.Round()};
    return true;
}

void FillToolVector::SpacingHandles(const CFillVector& fill, const Points& p, K2DArrayPoint* handles) const
{
    const CFillVector::Box box{ToDouble(p.p0), ToDouble(p.p1), ToDouble(p.p2)};
    const K2DDblPoint scale = fill.GetScale(ToDouble(m_startOrigin), ToDouble(m_startXEnd), ToDouble(m_startYEnd));
    const CFillVector::Neighbours next = fill.NeighbourOrigins(box, scale, m_tileRotationTransform);
    const double zero = GetZeroDegrees(&fill);
    // Turned half round with the spacing handles when the fill is flipped both ways.
    const double reach = fill.HFlipped() && fill.VFlipped() ? -RotationHandleLength : RotationHandleLength;
    const auto rotationHandle = [&](const K2DDblPoint& tile, double degrees) {
        // The tile's own turn is clockwise on screen, as atan2 measures it.
        const double a =
            zero + m_tileRotation + Kesto2D::KCAngle(Kesto2D::RoundHalfAwayFromZero(degrees * 100)).ToRadians();
        return Kesto2D::SaturateToRange(tile + Kesto2D::K2DVector(std::cos(a), std::sin(a)) * reach).Round();
    };
    handles->Add(next.b.Round());
    handles->Add(next.a.Round());
    handles->Add(rotationHandle(next.b, fill.GetAdditionalRotation()));
    handles->Add(rotationHandle(next.a, fill.GetAdditionalRotation2()));
}

void FillToolVector::BaseGetHandles(K2DArrayPoint* handles) const
{
    const CFillVector* fill = FillOfKind<CFillVector>(nullptr);
    Points p;
    if (!handles || !fill || !GetPoints(nullptr, p)) {
        if (!GetFill())
            ReportNoFill(kReportHandlesWithoutFill);
        return;
    }
    // The placed box is scaled to the drawing already: its points are the tile's own.
    if (GetControlBoxMode() == ScalingMode)
        FillToolBitmap::BaseGetHandles(handles);
    else
        SpacingHandles(*fill, p, handles);
}

void FillToolVector::BuildSnapOffsets(const CFillVector& fill)
{
    const CPoint size = fill.GetWidthHeight();
    const auto build = [](std::vector<int>& list, int side) {
        list.assign({0, side / 4, -side / 4, side / 2, -side / 2});
        for (int k = 1; k <= 3; ++k) {
            list.push_back(Kesto2D::SaturateCoordinate(static_cast<long long>(side) * k));
            list.push_back(Kesto2D::SaturateCoordinate(-static_cast<long long>(side) * k));
        }
    };
    build(m_xSnapOffsets, size.x);
    build(m_ySnapOffsets, size.y);
}

void FillToolVector::GetSnappedOffset(CPoint& offset) const
{
    const auto snap = [](int& value, const std::vector<int>& list) {
        for (const int v : list) {
            if (std::llabs(static_cast<long long>(value) - v) < SnapReach) {
                value = v;
                return;
            }
        }
    };
    snap(offset.x, m_xSnapOffsets);
    snap(offset.y, m_ySnapOffsets);
}

void FillToolVector::TakeStartState(const CFillVector& fill)
{
    GetCurrentControls(&fill, m_currentControls, true);
    ControlInstance placed;
    GetCurrentControls(&fill, placed, false);
    m_startOrigin = placed.origin.Round();
    m_startXEnd = placed.xEnd.Round();
    m_startYEnd = placed.yEnd.Round();
    m_spacingVector1 = {fill.GetAdditionalOffset().x, fill.GetAdditionalOffset2().y};
    m_spacingVector2 = Kesto2D::SaturatePoint(-static_cast<long long>(fill.GetAdditionalOffset2().x),
                                              -static_cast<long long>(fill.GetAdditionalOffset().y));
}

void FillToolVector::OnDragStart(CPoint& point, unsigned int flags)
{
    const CFillVector* fill = FillOfKind<CFillVector>(nullptr);
    if (!fill) {
        ReportNoFill(kReportDragStartWithoutFill);
        return;
    }
    FillToolBitmap::OnDragStart(point, flags);
    TakeStartState(*fill);
    SetCurrentNode(IndexFromPoint(point));
    if (m_xSnapOffsets.empty() || GetControlBoxMode() == ScalingMode)
        BuildSnapOffsets(*fill);
    m_spacingHandlesAtPress = K2DArrayPoint();
    if (GetControlBoxMode() == SpacingMode)
        SpacingHandles(*fill, {m_startOrigin, m_startXEnd, m_startYEnd}, &m_spacingHandlesAtPress);
}

void FillToolVector::OnDragChange(CPoint& point, unsigned int flags)
{
    if (!CheckDragStarted())
        return;
    if (GetControlBoxMode() == ScalingMode)
        OnDragChangeScaleAndRotate(point, flags);
    else
        OnDragChangeSpaceAdjust(point, flags);
}

void FillToolVector::OnDragChangeSpaceAdjust(CPoint& point, unsigned int flags)
{
    auto* fill = dynamic_cast<CFillVector*>(GetWorkingFill());
    if (!fill || m_spacingHandlesAtPress.GetSize() < 4)
        return;
    const bool shift = (flags & DragFlagShift) != 0;
    CPoint anchor = GetDragStart();
    CPoint pt = point;
    int node = GetCurrentNode();
    if (IsCreate()) {
        // A press away from the handles sets the spacing along the x axis, as if it had caught
        // handle A, once the pointer has gone far enough.
        if (std::llabs(static_cast<long long>(pt.x) - anchor.x) <= SpacingCreateTravel ||
            std::llabs(static_cast<long long>(pt.y) - anchor.y) <= SpacingCreateTravel)
            return;
        SnapNoTransform(anchor, anchor);
        SnapNoTransform(pt, pt);
        node = 1;
    }
    const bool turnedHalfRound = fill->HFlipped() && fill->VFlipped();
    if (node == 0 || node == 1) {
        const CPoint start = m_spacingHandlesAtPress.GetAt(node);
        CPoint moved = Kesto2D::OffsetPoint(start, anchor, pt);
        if (!shift)
            Snap(moved, moved);
        Kesto2D::K2DVector delta = ToDouble(moved) - ToDouble(start);
        if (turnedHalfRound)
            delta = -delta;
        // The handle shows its spacing turned by the tile; the pointer's move goes back through
        // that turn, at the scale the handles are drawn at.
        const K2DLtGeneral turn = m_tileRotationTransform;
        if (turn.HasInverse())
            delta = turn.GetInverse().ApplyTo(delta);
        const K2DDblPoint scale = fill->GetScale(ToDouble(m_startOrigin), ToDouble(m_startXEnd), ToDouble(m_startYEnd));
        delta = {delta.dx * scale.x, delta.dy * scale.y};
        const CPoint step = RoundVector(delta);
        if (node == 0) {
            CPoint spacing = Kesto2D::OffsetPoint(m_spacingVector2, step.x, step.y);
            if (!shift)
                GetSnappedOffset(spacing);
            fill->SetAdditionalOffsetsX1Y2(spacing);
        } else {
            const CPoint spacing = Kesto2D::OffsetPoint(m_spacingVector1, step.x, step.y);
            CPoint negated =
                Kesto2D::SaturatePoint(-static_cast<long long>(spacing.x), -static_cast<long long>(spacing.y));
            if (!shift)
                GetSnappedOffset(negated);
            fill->SetAdditionalOffsetsX2Y1(negated);
        }
        return;
    }
    if (node == 2 || node == 3) {
        const CPoint tile = m_spacingHandlesAtPress.GetAt(node - 2);
        const double dx = static_cast<double>(pt.x) - tile.x;
        const double dy = static_cast<double>(pt.y) - tile.y;
        // Measured as atan2 measures on the page (y down): a turn clockwise on screen is positive.
        const double angle = std::atan2(dy, dx) - GetZeroDegrees(fill) - m_tileRotation;
        int hundredths = Kesto2D::KCAngle::FromRadians(angle).Value();
        if (flags & DragFlagCtrl)
            hundredths =
                Kesto2D::RoundHalfAwayFromZero(static_cast<double>(hundredths) / kRotationStep) * kRotationStep;
        const double degrees = hundredths / 100;
        if (node == 2)
            fill->SetAdditionalRotation(degrees);
        else
            fill->SetAdditionalRotation2(degrees);
    }
}

void FillToolVector::OnDragChangeScaleAndRotate(CPoint& point, unsigned int flags)
{
    const bool shift = (flags & DragFlagShift) != 0;
    const bool ctrl = (flags & DragFlagCtrl) != 0;
    const int n = GetNumGradientNodes();
    const int node = GetCurrentNode();
    const CFillVector* fill = FillOfKind<CFillVector>(nullptr);
    if (!fill)
        return;
    CPoint o = m_startOrigin, x = m_startXEnd, y = m_startYEnd;
    if (node > 0)
        fill->ScaleControlBoxToMetaInstance(o, x, y, node == n, true);
    CPoint anchor = GetDragStart();
    if (IsCreate()) {
        const long long dx = static_cast<long long>(point.x) - anchor.x;
        const long long dy = static_cast<long long>(point.y) - anchor.y;
        if (std::llabs(dx) >= ScalingCreateTravel || std::llabs(dy) >= ScalingCreateTravel) {
            SnapNoTransform(anchor, anchor);
            CPoint end = point;
            if (!shift)
                SnapNoTransform(end, end);
            const CPoint third = CalculatePerpendicular(o, x, y, anchor, end, false, false);
            CommitBox({ToDouble(anchor), ToDouble(end), ToDouble(third)}, false);
            return;
        }
    } else if (shift) {
        if (node == 0)
            anchor = o;
        else if (node == n - 1)
            anchor = x;
        else if (node == n)
            anchor = y;
        if (node == n - 1 || node == n)
            ConstrainAnglePolar(o, point);
    }
    if (node == 0) {
        CPoint moved = Kesto2D::OffsetPoint(o, anchor, point);
        if (!shift)
            SnapNoTransform(moved, moved);
        CommitBox(
            {ToDouble(moved), ToDouble(Kesto2D::OffsetPoint(x, o, moved)), ToDouble(Kesto2D::OffsetPoint(y, o, moved))},
            false);
    } else if (node == n - 1 || node == n) {
        const bool yEnd = node == n;
        const CPoint perpendicular = CalculatePerpendicular(o, x, y, anchor, point, yEnd, !yEnd);
        const Arms arms = yEnd ? DragArmEnd(o, y, x, anchor, point, perpendicular, shift, ctrl)
                               : DragArmEnd(o, x, y, anchor, point, perpendicular, shift, ctrl);
        const CPoint newX = yEnd ? arms.other : arms.dragged;
        const CPoint newY = yEnd ? arms.dragged : arms.other;
        CommitBox({ToDouble(o), ToDouble(newX), ToDouble(newY)}, yEnd);
    } else {
        SlideInnerStop(node, n - 1, point);
    }
}

void FillToolVector::CommitBox(ControlInstance box, bool yLeads)
{
    auto* fill = dynamic_cast<CFillVector*>(GetWorkingFill());
    if (!fill)
        return;
    fill->ScaleControlBoxToMetaInstance(box.origin, box.xEnd, box.yEnd, yLeads, true);
    const ControlInstance start{ToDouble(m_startOrigin), ToDouble(m_startXEnd), ToDouble(m_startYEnd)};
    const auto spacingAfter = [&](const K2DDblPoint& startEnd, const K2DDblPoint& end, const CPoint& spacing) {
        ControlInstance neighbour;
        CalculateTileHandles(neighbour, box, {startEnd - start.origin, Kesto2D::K2DVector(spacing.x, spacing.y)},
                             {end - box.origin, {}});
        return RoundVector(neighbour.origin - box.origin - (end - box.origin));
    };
    const CPoint spacing1 = spacingAfter(start.xEnd, box.xEnd, m_spacingVector1);
    const CPoint spacing2 = spacingAfter(start.yEnd, box.yEnd, m_spacingVector2);
    fill->SetRawBox({fill->FromSpread(box.origin), fill->FromSpread(box.xEnd), fill->FromSpread(box.yEnd)}, true);
    fill->SetAdditionalOffsetsX1Y2(spacing2);
    fill->SetAdditionalOffsetsX2Y1(
        Kesto2D::SaturatePoint(-static_cast<long long>(spacing1.x), -static_cast<long long>(spacing1.y)));
}

void FillToolVector::OnDragEnd(CPoint& point, unsigned int flags)
{
    const CFillVector* fill = FillOfKind<CFillVector>(nullptr);
    if (!fill) {
        ReportNoFill(kReportDragEndWithoutFill);
        return;
    }
    FillTool::OnDragEnd(point, flags);
    ControlInstance placed;
    GetCurrentControls(fill, placed, false);
    m_tileRotation = CFillVector::MeasureTileRotation(placed.origin, placed.yEnd);
    m_tileRotationTransform = CFillVector::TileRotationTransform(m_tileRotation);
    // The box the handles are measured against is the one the drag left.
    TakeStartState(*fill);
}

void FillToolVector::BuildHandleScene(HandleScene& scene) const
{
    if (GetControlBoxMode() == ScalingMode) {
        FillToolBitmap::BuildHandleScene(scene);
        return;
    }
    Points p;
    if (!GetPoints(nullptr, p)) {
        ReportNoFill(kReportDrawWithoutFill);
        return;
    }
    scene.AddPolyline(CornerParallelogram(p.p0, p.p1, p.p2), false);
    K2DArrayPoint handles;
    BaseGetHandles(&handles);
    if (handles.GetSize() < 4)
        return;
    scene.AddLine(handles.GetAt(0), handles.GetAt(2), true);
    scene.AddLine(handles.GetAt(1), handles.GetAt(3), true);
    for (int i = 0; i < handles.GetSize(); ++i)
        scene.AddHandle(handles.GetAt(i), kHandleColour, i);
}

void FillToolVector::InitContextButtons(CXTPCommandBars* bars)
{
    FillToolBitmap::InitContextButtons(bars);
    AddContextItem(FillCmdScaleMode);
    AddContextItem(FillCmdSpaceMode);
}

void FillToolVector::OnFillControlBoxModeClicked()
{
    SetControlBoxMode(GetControlBoxMode() == ScalingMode ? SpacingMode : ScalingMode);
    GetSite()->NotifyHandlesReset();
}

void FillToolVector::OnUpdateFillControlBoxScaleMode(KestoPlatform::CCmdUI* ui)
{
    if (KestoPlatform::CXTPControl* control = ui->GetControl()) {
        control->SetVisible(GetControlBoxMode() == SpacingMode);
        ui->Enable(GetControlBoxMode() == SpacingMode);
    }
}

void FillToolVector::OnUpdateFillControlBoxSpaceMode(KestoPlatform::CCmdUI* ui)
{
    if (KestoPlatform::CXTPControl* control = ui->GetControl()) {
        control->SetVisible(GetControlBoxMode() == ScalingMode);
        ui->Enable(GetControlBoxMode() == ScalingMode);
    }
}

void FillToolVector::OnFillControlResetHandles()
{
    const CFillVector* fill = FillOfKind<CFillVector>(nullptr);
    if (!fill) {
        ReportNoFill(kReportResetWithoutFill);
        return;
    }
    RefPtr<CFill> copy = fill->Clone();
    auto* reset = static_cast<CFillVector*>(copy.get());
    reset->ResetExtents();
    TakeStartState(*reset);
    m_tileRotation = 0;
    m_tileRotationTransform.SetToIdentity();
    UpdateFill(copy.get(), nullptr);
    GetSite()->NotifyHandlesReset();
}

void FillToolVector::OnTransformWithObject(bool on)
{
    const CFillVector* fill = FillOfKind<CFillVector>(nullptr);
    if (!fill) {
        ReportNoFill(kReportTransformWithoutFill);
        return;
    }
    RefPtr<CFill> copy = fill->Clone();
    static_cast<CFillVector*>(copy.get())->SetScaleRotateIndependentOfObject(!on, m_drawObjectTransform);
    SetFill(copy.get());
}

const KestoPlatform::AFX_MSGMAP* FillToolVector::GetMessageMap() const
{
    using namespace KestoPlatform::MessageMap;
    static const KestoPlatform::AFX_MSGMAP_ENTRY entries[] = {
        Command<&FillToolVector::OnFillControlBoxModeClicked>(FillCmdScaleMode),
        Command<&FillToolVector::OnFillControlBoxModeClicked>(FillCmdSpaceMode),
        Update<&FillToolVector::OnUpdateFillControlBoxScaleMode>(FillCmdScaleMode),
        Update<&FillToolVector::OnUpdateFillControlBoxSpaceMode>(FillCmdSpaceMode),
        Command<&FillToolVector::OnFillControlResetHandles>(FillCmdResetHandles),
    };
    static const KestoPlatform::AFX_MSGMAP map{FillToolBitmap::GetMessageMap(), entries};
    return &map;
}

} // namespace KestoTool
