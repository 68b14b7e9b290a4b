#include "kestotool/filltool/FillToolGradient.h"

#include "kestotool/filltool/FillCommands.h"
#include "kestotool/gdi/CFillBitmap.h"
#include "kestotool/gdi/CFillGradient.h"
#include "kestotool/gdi/CMonoColour.h"
#include "kestotool/geometry/CoordinateRange.h"
#include "kestotool/geometry/K2DGeometry.h"
#include "kestotool/geometry/K2DStraightLine.h"
#include "kestotool/geometry/Rounding.h"
#include "kestotool/platform/CCmdUI.h"
#include "kestotool/platform/WindowTypes.h"
#include "kestotool/resources/ResourceIds.h"
#include "kestotool/tool/IDocumentEx.h"
#include "kestotool/tool/IToolHelper.h"
#include "kestotool/tool/Module.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace KestoTool {

using KestoGDI::CFillWithStops;
using KestoGDI::CMonoColour;
using KestoGDI::ColourIntPairs;
using Kesto2D::RoundHalfUp;

KESTO_IMPLEMENT_DYNAMIC(FillToolGradient, FillTool)

const ColourIntPairs& FillToolGradient::GetGradientNodes() const
{
    static const ColourIntPairs none;
    const auto* withStops = dynamic_cast<const CFillWithStops*>(GetFill());
    return withStops ? withStops->GetColourIntPairs() : none;
}

int FillToolGradient::GetNumGradientNodes() const
{
    return CanCreateNewNode() ? GetNodeCount() : 2;
}

bool FillToolGradient::IsLastNode(int handle) const
{
    return CanCreateNewNode() ? handle == GetNodeCount() - 1 : handle == 1;
}

K2DArrayPoint FillToolGradient::SquareOnLine(CPoint start, CPoint end)
{
    Kesto2D::K2DStraightLine line;
    line.SetFinite(start, end);
    const double half = line.GetLength() / 2;
    K2DArrayPoint outline;
    outline.Add(line.PointAtPerpendicularDistance(start, -half).Round());
    outline.Add(line.PointAtPerpendicularDistance(end, -half).Round());
    outline.Add(line.PointAtPerpendicularDistance(end, half).Round());
    outline.Add(line.PointAtPerpendicularDistance(start, half).Round());
    outline.AddClose(0);
    return outline;
}

int FillToolGradient::EmptyHint(CString* out)
{
    if (out)
        *out = CString();
    return 1;
}

FillToolGradient::Arms FillToolGradient::DragArmEnd(CPoint corner, CPoint draggedStart, CPoint otherStart, CPoint press,
                                                    CPoint point, CPoint perpendicular, bool shift, bool ctrl)
{
    Arms arms{Kesto2D::OffsetPoint(draggedStart, press, point), otherStart};
    if (!shift)
        Snap(arms.dragged, arms.dragged);
    arms.other = ctrl ? Kesto2D::OffsetPoint(otherStart, press, perpendicular)
                      : PreserveAngle(corner, draggedStart, arms.dragged, otherStart);
    return arms;
}

FillToolGradient::Figure FillToolGradient::DrawnFigure(CPoint anchor, CPoint& point, CPoint perpendicular, bool shift)
{
    Snap(anchor, anchor);
    if (!shift)
        Snap(point, point);
    return {anchor, point, perpendicular};
}

FillToolGradient::Figure FillToolGradient::MovedFigure(const Figure& start, CPoint press, CPoint point, bool shift)
{
    Figure moved{Kesto2D::OffsetPoint(start.p0, press, point), Kesto2D::OffsetPoint(start.p1, press, point),
                 Kesto2D::OffsetPoint(start.p2, press, point), Kesto2D::OffsetPoint(start.p3, press, point)};
    if (!shift)
        Snap(moved.p0, moved.p0);
    return moved;
}

FillToolGradient::Figure FillToolGradient::FigureWithArmDragged(const Figure& start, bool first, CPoint press,
                                                                CPoint point, CPoint perpendicular, bool shift,
                                                                bool ctrl)
{
    Figure moved = start;
    const Arms arms = DragArmEnd(start.p0, first ? start.p1 : start.p2, first ? start.p2 : start.p1, press, point,
                                 perpendicular, shift, ctrl);
    (first ? moved.p1 : moved.p2) = arms.dragged;
    (first ? moved.p2 : moved.p1) = arms.other;
    return moved;
}

K2DArrayPoint FillToolGradient::AxesParallelogram(CPoint centre, CPoint end, CPoint shape)
{
    const long long ux = static_cast<long long>(end.x) - centre.x, uy = static_cast<long long>(end.y) - centre.y;
    const long long vx = static_cast<long long>(shape.x) - centre.x, vy = static_cast<long long>(shape.y) - centre.y;
    constexpr int kCorners[4][2] = {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}};
    K2DArrayPoint outline;
    for (const auto& [su, sv] : kCorners)
        outline.Add(Kesto2D::OffsetPoint(centre, su * ux + sv * vx, su * uy + sv * vy));
    outline.AddClose(0);
    return outline;
}

K2DArrayPoint FillToolGradient::CornerParallelogram(CPoint p0, CPoint p1, CPoint p2)
{
    K2DArrayPoint outline;
    outline.Add(p0);
    outline.Add(p1);
    outline.Add(Kesto2D::OffsetPoint(p2, static_cast<long long>(p1.x) - p0.x, static_cast<long long>(p1.y) - p0.y));
    outline.Add(p2);
    outline.AddClose(0);
    return outline;
}

CRect FillToolGradient::LongerAxisBox(CPoint centre, CPoint end, CPoint shape)
{
    using Kesto2D::K2DGeometry::IDist;
    const CPoint far = IDist(centre, shape) > IDist(centre, end) ? shape : end;
    return {centre.x, centre.y, far.x, far.y};
}

int FillToolGradient::GetExtendedNode() const
{
    const int c = GetCurrentNode();
    return c < GetNumGradientNodes() ? -1 : c - GetNumGradientNodes();
}

const CColour* FillToolGradient::GetGradientColour(int index) const
{
    const KestoGDI::CColourIntPair* stop = index == -1 ? nullptr : GetGradientNodes().GetAt(index);
    return stop ? &stop->GetColour() : nullptr;
}

const CColour* FillToolGradient::ColourFromNode() const
{
    const int index = GradientIndex(GetCurrentNode());
    return index == -1 ? nullptr : GetGradientColour(index);
}

int FillToolGradient::IndexFromPoint(const CPoint& point) const
{
    K2DArrayPoint handles;
    BaseGetHandles(&handles);
    return HitPoint(handles, point);
}

void FillToolGradient::AddGradientHandles(K2DArrayPoint* handles, CPoint start, CPoint end) const
{
    const ColourIntPairs& stops = GetGradientNodes();
    for (int i = 0; i < stops.GetSize(); ++i) {
        if (CanCreateNewNode() || i == 0 || i == stops.GetSize() - 1)
            handles->Add(stops.GetAt(i)->GetValue(start, end));
    }
}

int FillToolGradient::GetNodeValueFromPoints(CPoint start, CPoint end, CPoint p) const
{
    Kesto2D::K2DStraightLine line;
    if (!line.SetFinite(start, end))
        return -1;
    const K2DDblPoint q = line.ClosestPointOnLine(p);
    return static_cast<int>(K2DDblPoint(start).Distance(q) * 10000.0 / line.GetLength());
}

bool FillToolGradient::IsPointOnNodeLine(CPoint a, CPoint b, CPoint p, int tolerance) const
{
    if (tolerance == -1)
        tolerance = GetDefaultTolerance();
    Kesto2D::K2DStraightLine line;
    line.SetFinite(a, b);
    return line.IsPointOnLine(p, tolerance);
}

int FillToolGradient::AddGradientNode(int position)
{
    ColourIntPairs stops = GetGradientNodes();
    const std::unique_ptr<CColour> colour = stops.MakeColourForValue(position);
    if (!colour)
        return 0;
    stops.Add(*colour, position);
    stops.Sort();
    const int index = std::max(stops.Find(position, colour.get()), 0);
    SetGradientNodes(stops);
    return index;
}

int FillToolGradient::AddGradientNode(const CColour& colour, int position)
{
    const CMonoColour level(255 - colour.GetIntensity());
    const CColour& used = IsTransparency() ? static_cast<const CColour&>(level) : colour;
    ColourIntPairs stops = GetGradientNodes();
    stops.Add(used, position);
    stops.Sort();
    const int index = std::max(stops.Find(position, &used), 0);
    SetGradientNodes(stops);
    return index;
}

bool FillToolGradient::CreateNewNode(const CPoint& point)
{
    if (!CanCreateNewNode() || !IsPointOnLine(point, -1))
        return false;
    const int position = GetPercentageFromPoint(point);
    if (position == -1)
        return false;
    AddGradientNode(position);
    return true;
}

bool FillToolGradient::OnFillCellDrop(CPoint& point, const CColour* colour)
{
    if (!colour)
        return false;
    const int h = IndexFromPoint(point);
    if (h != -1) {
        SetCurrentNode(h);
        SetGradientColour(GradientIndex(h), colour);
        return true;
    }
    if (!IsPointOnLine(point, -1) || !CanCreateNewNode())
        return false;
    // A line of no length has no position to add a stop at (-1), as for a click.
    const int position = GetPercentageFromPoint(point);
    if (position == -1)
        return false;
    AddGradientNode(*colour, position);
    return true;
}

int FillToolGradient::SetGradientValue(int index, int value)
{
    ColourIntPairs stops = GetGradientNodes();
    if (stops.IsEmpty())
        return 0;
    index = std::clamp(index, 0, stops.GetSize() - 1);
    KestoGDI::CColourIntPair* stop = stops.GetAt(index);
    const std::unique_ptr<CColour> colour = stop->GetColour().Clone();
    stop->SetValue(value);
    stops.Sort();
    SetGradientNodes(stops);
    const int found = stops.Find(value, colour.get());
    return found == -1 ? index : found;
}

void FillToolGradient::SetGradientColour(int index, const CColour* colour)
{
    const CMonoColour level(colour ? 255 - colour->GetIntensity() : 255);
    const CColour& used = (IsTransparency() || !colour) ? static_cast<const CColour&>(level) : *colour;
    ColourIntPairs stops = GetGradientNodes();
    KestoGDI::CColourIntPair* stop = stops.GetAt(index);
    if (!stop)
        return;
    stop->SetColour(used);
    stop->GetColour().SetAlpha(used.GetAlpha());
    SetGradientNodes(stops);
}

void FillToolGradient::SetGradientAlpha(int index, unsigned char alpha)
{
    if (IsTransparency()) {
        const CMonoColour level(255 - alpha);
        SetGradientColour(index, &level);
        return;
    }
    ColourIntPairs stops = GetGradientNodes();
    if (KestoGDI::CColourIntPair* stop = stops.GetAt(index)) {
        stop->GetColour().SetAlpha(alpha);
        SetGradientNodes(stops);
    }
}

void FillToolGradient::SetGradientTint(int index, int tint)
{
    const CColour* current = GetGradientColour(index);
    if (!current)
        return;
    const std::unique_ptr<CColour> tinted = current->Clone();
    tinted->SetTint(static_cast<short>(tint));
    SetGradientColour(index, tinted.get());
}

bool FillToolGradient::OnFillCellChanged(const CColour* colour)
{
    const int c = GetCurrentNode();
    if (c == -1)
        return false;
    const auto* mono = dynamic_cast<const CMonoColour*>(colour);
    if (IsTransparency() && mono)
        SetGradientAlpha(GradientIndex(c), static_cast<unsigned char>(mono->GetLevel()));
    else
        SetGradientColour(GradientIndex(c), colour);
    return true;
}

std::optional<int> FillToolGradient::CurrentStopForEdit()
{
    const int c = GetCurrentNode();
    if (c == -1)
        return std::nullopt;
    if (c >= GetNodeCount()) {
        SetCurrentNode(-1);
        return std::nullopt;
    }
    return GradientIndex(c);
}

bool FillToolGradient::OnAlphaCellChanged(unsigned char alpha)
{
    const std::optional<int> stop = CurrentStopForEdit();
    if (stop)
        SetGradientAlpha(*stop, alpha);
    return stop.has_value();
}

bool FillToolGradient::OnTintChanged(int tint)
{
    const std::optional<int> stop = CurrentStopForEdit();
    if (stop)
        SetGradientTint(*stop, tint);
    return stop.has_value();
}

void FillToolGradient::Commit(const CFill* fill, const wchar_t* undoName)
{
    if (fill->IsTransparency())
        UpdateTransparency(fill, undoName, false);
    else
        UpdateFill(fill, undoName);
}

void FillToolGradient::SetGradientNodes(const ColourIntPairs& stops)
{
    if (!GetFill())
        return;
    RefPtr<CFill> clone = GetFill()->Clone();
    if (auto* withStops = dynamic_cast<CFillWithStops*>(clone.get()))
        withStops->SetColourIntPairs(stops);
    if (auto* bitmap = dynamic_cast<KestoGDI::CFillBitmap*>(clone.get()); bitmap && !stops.IsEmpty())
        bitmap->SetGradientRecolour(true);
    Commit(clone.get(), nullptr);
}

void FillToolGradient::DeleteGradientNode(int index)
{
    ColourIntPairs stops = GetGradientNodes();
    stops.Delete(index);
    SetGradientNodes(stops);
}

bool FillToolGradient::CanDeleteCurrentNode() const
{
    const int c = GetCurrentNode();
    return CanDeleteNode() && c >= 1 && c < GetNumGradientNodes() - 1;
}

void FillToolGradient::OnKeyDown(unsigned int key, unsigned int, unsigned int)
{
    if (key == KeyDelete && CanDeleteCurrentNode())
        DeleteCurrentNode();
}

int FillToolGradient::GetLevel(int handle) const
{
    const int index = GradientIndex(handle);
    const auto* gradient = dynamic_cast<const KestoGDI::CFillGradient*>(GetFill());
    if (index == -1 || !gradient)
        return -1;
    const KestoGDI::CColourIntPair* stop = gradient->GetColourIntPairs().GetAt(index);
    const auto* mono = stop ? dynamic_cast<const CMonoColour*>(&stop->GetColour()) : nullptr;
    return mono ? mono->GetLevel() : -1;
}

void FillToolGradient::SetLevel(int level, int index, bool commit)
{
    if (index == -1)
        index = GetCurrentNode();
    if (index == -1 || !GetFill())
        return;
    RefPtr<CFill> clone = GetFill()->Clone();
    auto* gradient = dynamic_cast<KestoGDI::CFillGradient*>(clone.get());
    if (!gradient)
        return;
    // The index is the stop's own, not a handle's: GradientIndex is not applied here.
    ColourIntPairs stops = gradient->GetColourIntPairs();
    if (KestoGDI::CColourIntPair* stop = stops.GetAt(index))
        stop->SetColour(CMonoColour(level));
    gradient->SetColourIntPairs(stops);
    UpdateTransparency(clone.get(), nullptr, commit);
}

void FillToolGradient::TakeLevelFromBox(KestoPlatform::NMXTPCONTROL* notify, int index)
{
    auto* box = dynamic_cast<KestoPlatform::CXTPControlEdit*>(notify ? notify->pControl : nullptr);
    if (!box || !dynamic_cast<const KestoGDI::CFillGradient*>(GetFill()))
        return;
    // The box shows the level itself as a percentage, not inverted.
    const int percent = RoundHalfUp(box->GetValue());
    const int level = RoundHalfUp(percent * 255.0 / 100.0);
    SetLevel(level, index, notify->hdr.code == KestoPlatform::XTP_NOTIFY_COMMIT);
}

void FillToolGradient::OnTransStart(KestoPlatform::NMXTPCONTROL* notify, long*)
{
    TakeLevelFromBox(notify, 0);
}
void FillToolGradient::OnTransEnd(KestoPlatform::NMXTPCONTROL* notify, long*)
{
    TakeLevelFromBox(notify, GetNodeCount() - 1);
}
void FillToolGradient::OnTransSolid(KestoPlatform::NMXTPCONTROL* notify, long*)
{
    TakeLevelFromBox(notify, -1);
}

void FillToolGradient::ShowLevelInBox(KestoPlatform::CCmdUI* ui, int handle)
{
    ui->Enable(true);
    auto* box = dynamic_cast<KestoPlatform::CXTPControlEdit*>(ui->GetControl());
    if (box && !box->HasFocus())
        box->SetValue(RoundHalfUp(GetLevel(handle) * 100.0 / 255.0));
}

void FillToolGradient::OnUpdateTransStart(KestoPlatform::CCmdUI* ui)
{
    ShowLevelInBox(ui, 0);
}
void FillToolGradient::OnUpdateTransEnd(KestoPlatform::CCmdUI* ui)
{
    ShowLevelInBox(ui, GetNodeCount() - 1);
}
void FillToolGradient::OnUpdateTransSolid(KestoPlatform::CCmdUI* ui)
{
    ShowLevelInBox(ui, GetCurrentNode());
}

void FillToolGradient::OnUpdateFillAspect(KestoPlatform::CCmdUI* ui)
{
    ui->Enable(true);
    ui->SetCheck(m_bLockRatio ? 1 : 0);
}

CRect FillToolGradient::ObjectBoxInObjectSpace() const
{
    CRect box = GetTransformedObjectBBox();
    const Kesto2D::K2DVector t = GetObjectToSpreadTransform().GetTranslation();
    box.OffsetRect(-Kesto2D::RoundHalfAwayFromZero(t.dx), -Kesto2D::RoundHalfAwayFromZero(t.dy));
    return box;
}

void FillToolGradient::RotateFill(int angle)
{
    if (!GetFill())
        return;
    RefPtr<CFill> clone = GetFill()->Clone();
    const CRect box = ObjectBoxInObjectSpace();
    const CPoint centre = box.CenterPoint();
    if (m_bLockRatio && box.Width() != 0 && box.Height() != 0) {
        const double w = box.Width();
        const double h = box.Height();
        const CRect line = GetFillLineBox(clone.get());
        const double f = std::abs(line.Height()) <= std::abs(line.Width()) ? h / w : w / h;
        clone->Transform(K2DLtGeneral::About(centre, Kesto2D::K2DLtScale(f, f)));
    }
    clone->Transform(K2DLtGeneral::About(centre, Kesto2D::K2DLtRotate(angle)));
    const CString undo =
        Module::Get().LoadString(clone->IsTransparency() ? IDS_UNDO_ROTATE_TRANSPARENCY : IDS_UNDO_ROTATE_FILL);
    Commit(clone.get(), undo.GetString());
}

void FillToolGradient::FitToShape(bool max)
{
    if (!GetFill())
        return;
    RefPtr<CFill> clone = GetFill()->Clone();
    CRect box = ObjectBoxInObjectSpace();
    const auto* bitmapFill = dynamic_cast<const KestoGDI::CFillBitmap*>(clone.get());
    const KestoGDI::CLtBitmap* bitmap = bitmapFill ? bitmapFill->GetBitmapForFill() : nullptr;
    if (max && bitmap && !bitmap->IsEmpty() && box.Width() > 0 && box.Height() > 0) {
        const double bw = bitmap->GetWidth();
        const double bh = bitmap->GetHeight();
        const double w = box.Width();
        const double h = box.Height();
        if (std::abs(bw / bh - w / h) > 1e-6) {
            if (bw / bh > w / h) {
                const int grow = RoundHalfUp((h / bh * bw - w) * 0.5);
                box.InflateRect(grow, 0);
            } else {
                const int grow = RoundHalfUp((w / bw * bh - h) * 0.5);
                box.InflateRect(0, grow);
            }
        }
    }
    clone->SetDefaultControls(box);
    Commit(clone.get(), nullptr);
}

CRect FillToolGradient::GetToolRect(const CFill* fill)
{
    return ToolRectOf(GetFillRect(fill));
}

CRect FillToolGradient::ToolRectOf(const CRect& r) const
{
    const K2DLtGeneral toSpread = GetObjectToSpreadTransform();
    CRect spread(toSpread.ApplyTo(r.TopLeft()), toSpread.ApplyTo(r.BottomRight()));
    spread.NormalizeRect();
    KestoPlatform::SIZE margin{7, 7};
    ClientToPaper(&margin);
    spread.InflateRect(margin);
    return spread;
}

const CColour* FillToolGradient::HandleColour(int handle) const
{
    // Without a handle per stop, the handles show the first and the last stop.
    const int entry = GradientIndex(handle);
    if (CanCreateNewNode())
        return GetGradientColour(entry);
    const int stops = GetGradientNodes().GetSize();
    return entry == 0 ? GetGradientColour(0) : entry == 1 ? GetGradientColour(stops - 1) : nullptr;
}

void FillToolGradient::AddControlBoxes(HandleScene& scene) const
{
    K2DArrayPoint handles;
    BaseGetHandles(&handles);
    for (int i = 0; i < handles.GetSize(); ++i) {
        if (const CColour* colour = HandleColour(i))
            scene.AddHandle(handles.GetAt(i), colour, i);
    }
}

void FillToolGradient::AddHandleOutline(HandleScene& scene, bool onContextToo) const
{
    K2DArrayPoint handles;
    BaseGetHandles(&handles);
    handles.AddClose(0);
    scene.AddPolyline(std::move(handles), true, onContextToo);
}

void FillToolGradient::AddCorners(HandleScene& scene) const
{
    // The corner kinds highlight their outline on both render paths.
    AddHandleOutline(scene, true);
    K2DArrayPoint handles;
    BaseGetHandles(&handles);
    const ColourIntPairs& nodes = GetGradientNodes();
    for (int i = 0; i < std::min(handles.GetSize(), nodes.GetSize()); ++i)
        scene.AddHandle(handles.GetAt(i), &nodes.GetAt(i)->GetColour(), i);
}

void FillToolGradient::InitContextButtons(CXTPCommandBars* bars)
{
    FillTool::InitContextButtons(bars);
    AddContextItem(FillCmdContext);
    if (!IsBitmapFill(GetFill())) {
        if (IsTwoColourFill(GetFill())) {
            if (IsFill()) {
                AddContextItem(FillCmdStart);
                AddContextItem(FillCmdEnd);
            } else {
                AddContextItem(FillCmdOpacityStart);
                AddContextItem(FillCmdOpacityStartHandle);
                AddContextItem(FillCmdOpacityEnd);
                AddContextItem(FillCmdOpacityEndHandle);
            }
        } else if (IsFill()) {
            AddContextItem(FillCmdSolid);
        } else {
            AddContextItem(FillCmdOpacity);
            AddContextItem(FillCmdOpacityHandle);
        }
    }
    // The context item goes on a second time; the host ignores the repeat.
    AddContextItem(FillCmdResetHandles);
    AddContextItem(FillCmdContext);
    AddContextItem(FillCmdRotateLeft);
    AddContextItem(FillCmdRotateRight);
    if (GetToolHelper()->IsLockRatioAvailable() && SupportsLockRatio())
        AddContextItem(FillCmdLockRatio);
}

const KestoPlatform::AFX_MSGMAP* FillToolGradient::GetMessageMap() const
{
    using namespace KestoPlatform::MessageMap;
    static const KestoPlatform::AFX_MSGMAP_ENTRY entries[] = {
        Command<&FillToolGradient::OnFillRotateCCW>(FillCmdRotateLeft),
        Command<&FillToolGradient::OnFillRotateCW>(FillCmdRotateRight),
        Notify<&FillToolGradient::OnTransStart>(FillCmdOpacityStartHandle, KestoPlatform::XTP_NOTIFY_EXECUTE),
        Notify<&FillToolGradient::OnTransStart>(FillCmdOpacityStartHandle, KestoPlatform::XTP_NOTIFY_COMMIT),
        Update<&FillToolGradient::OnUpdateTransStart>(FillCmdOpacityStartHandle),
        Notify<&FillToolGradient::OnTransEnd>(FillCmdOpacityEndHandle, KestoPlatform::XTP_NOTIFY_EXECUTE),
        Notify<&FillToolGradient::OnTransEnd>(FillCmdOpacityEndHandle, KestoPlatform::XTP_NOTIFY_COMMIT),
        Update<&FillToolGradient::OnUpdateTransEnd>(FillCmdOpacityEndHandle),
        Notify<&FillToolGradient::OnTransSolid>(FillCmdOpacityHandle, KestoPlatform::XTP_NOTIFY_COMMIT),
        Notify<&FillToolGradient::OnTransSolid>(FillCmdOpacityHandle, KestoPlatform::XTP_NOTIFY_EXECUTE),
        Update<&FillToolGradient::OnUpdateTransSolid>(FillCmdOpacityHandle),
        Command<&FillToolGradient::OnFillAspect>(FillCmdLockRatio),
        Update<&FillToolGradient::OnUpdateFillAspect>(FillCmdLockRatio),
        Command<&FillToolGradient::OnFitToShape>(FillCmdFitFill),
        Command<&FillToolGradient::OnMaxFitToShape>(FillCmdMaxFit),
        Command<&FillToolGradient::OnTransFitToShape>(FillCmdFitTransparency),
        Command<&FillToolGradient::OnResetNodes>(FillCmdResetHandles),
    };
    static const KestoPlatform::AFX_MSGMAP map{FillTool::GetMessageMap(), entries};
    return &map;
}

} // namespace KestoTool
