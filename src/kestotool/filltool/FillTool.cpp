#include "kestotool/filltool/FillTool.h"

#include "kestotool/filltool/FillCommands.h"
#include "kestotool/filltool/FillToolImages.h"
#include "kestotool/gdi/CFillBitmap.h"
#include "kestotool/gdi/CFillGradient.h"
#include "kestotool/gdi/CFillSolid.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/geometry/CoordinateRange.h"
#include "kestotool/geometry/K2DGeometry.h"
#include "kestotool/geometry/Rounding.h"
#include "kestotool/kernel/VerifyReporter.h"
#include "kestotool/tool/IDocumentEx.h"
#include "kestotool/tool/IToolHelper.h"
#include "kestotool/tool/NullToolSite.h"
#include "kestotool/tool/ToolIdMap.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace KestoTool {

using Kesto2D::K2DLtRotate;
using Kesto2D::K2DLtScale;
using Kesto2D::K2DGeometry::CalcAngle;

KESTO_IMPLEMENT_DYNAMIC(FillTool, KestoPlatform::CCmdTarget)

namespace {

// Lines of the tool base's own reports; host logs may key on them.
constexpr int kLineNoSite = 1070;
constexpr int kLineDragNotStarted = 1071;
constexpr int kLineWrongKind = 1072;
constexpr int kLineNoHelper = 1073;

void Report(int line, const char* hint)
{
    KestoKernel::VerifyFailed("KestoTool", "FillTool", line, hint);
}

NullToolHelper g_nullHelper;
NullToolSite g_nullSite;

IToolSite* SiteOrNull(IToolSite* site)
{
    if (!site)
        Report(kLineNoSite, "a tool needs its host's IToolSite: pass the site to the constructor");
    return site ? site : &g_nullSite;
}

} // namespace

FillTool::FillTool(const CFill* fill, IToolSite* site) : m_pSite(SiteOrNull(site))
{
    SetFill(fill);
}

FillTool::~FillTool()
{
    if (const CFill* fill = m_pFill.exchange(nullptr))
        fill->Release();
}

void FillTool::SetFill(const CFill* fill)
{
    // A fill its owner holds by reference is shared: fills are never changed while shared, and
    // the tool copies it before a drag reshapes it (GetWorkingFill). One nobody holds is copied.
    const CFill* kept = nullptr;
    if (fill && fill->GetRefCount() > 0) {
        fill->AddRef();
        kept = fill;
    } else if (fill) {
        kept = fill->Clone().Detach();
    }
    if (const CFill* previous = m_pFill.exchange(kept))
        previous->Release();
    m_bWrongKindReported = false;
}

CFill* FillTool::GetWorkingFill()
{
    const CFill* fill = m_pFill.load();
    if (fill && fill->GetRefCount() > 1) {
        const CFill* copy = fill->Clone().Detach();
        m_pFill.exchange(copy);
        fill->Release();
        fill = copy;
    }
    // Sole owner of a fill that was made on the heap as a changeable object.
    return const_cast<CFill*>(fill);
}

const CFill* FillTool::GetFill() const
{
    return m_pFill.load();
}

bool FillTool::IsTransparency() const
{
    const CFill* fill = GetFill();
    return fill && fill->IsTransparency();
}

bool FillTool::IsTwoColourFill(const CFill* fill)
{
    const auto* gradient = dynamic_cast<const KestoGDI::CFillGradient*>(fill);
    return gradient && gradient->GetColourIntPairs().GetSize() == 2;
}

bool FillTool::IsBitmapFill(const CFill* fill)
{
    return dynamic_cast<const KestoGDI::CFillBitmap*>(fill) != nullptr;
}

// Base behaviour of the virtual operations: a tool without handles that changes nothing.
int FillTool::IndexFromPoint(const CPoint&) const
{
    return -1;
}
void FillTool::OnDragStart(CPoint& point, unsigned int)
{
    m_ptDragStart = point;
    m_bDragStarted = true;
}

void FillTool::OnDragChange(CPoint&, unsigned int)
{
    CheckDragStarted();
}

void FillTool::OnDragEnd(CPoint&, unsigned int)
{
    if (CheckDragStarted())
        m_bDragStarted = false;
}

bool FillTool::CheckDragStarted() const
{
    if (!m_bDragStarted)
        Report(kLineDragNotStarted, "call OnDragStart before OnDragChange and OnDragEnd; the move is ignored");
    return m_bDragStarted;
}

void FillTool::ReportWrongKind() const
{
    if (!std::exchange(m_bWrongKindReported, true))
        Report(kLineWrongKind, "the tool was given a fill of another kind: make tools with FillToolFactory");
}
bool FillTool::OnFillCellDrop(CPoint&, const CColour*)
{
    return false;
}
bool FillTool::OnFillCellChanged(const CColour*)
{
    return false;
}
bool FillTool::OnAlphaCellChanged(unsigned char)
{
    return false;
}
bool FillTool::OnTintChanged(int)
{
    return false;
}
void FillTool::OnKeyDown(unsigned int, unsigned int, unsigned int) {}
CRect FillTool::GetToolRect(const CFill*)
{
    return {};
}
CRect FillTool::GetFillRect(const CFill*)
{
    return {};
}
const CColour* FillTool::ColourFromNode() const
{
    return nullptr;
}
int FillTool::GetCurrentNode() const
{
    return m_nCurrentNode;
}
void FillTool::SetCurrentNode(int node)
{
    m_nCurrentNode = node;
}
int FillTool::GetHintLine(CString*) const
{
    return 0;
}

bool FillTool::OnMouseHover(const CPoint& point)
{
    return SetHotNode(IndexFromPoint(point));
}

bool FillTool::SetHotNode(int handle)
{
    const bool changed = !m_bHovering || handle != m_nHotNode;
    m_bHovering = true;
    m_nHotNode = handle;
    return changed;
}

bool FillTool::OnMouseLeave()
{
    const bool changed = m_bHovering;
    m_bHovering = false;
    m_nHotNode = -1;
    return changed;
}

int FillTool::GetHintNode() const
{
    return m_bHovering && !IsInDrag() ? m_nHotNode : GetCurrentNode();
}
bool FillTool::CanCreateNewNode() const
{
    return false;
}
bool FillTool::CanDeleteNode() const
{
    return CanCreateNewNode();
}
bool FillTool::CreateNewNode(const CPoint&)
{
    return false;
}
void FillTool::GetHandles(K2DArrayPoint* handles) const
{
    BaseGetHandles(handles);
}
void FillTool::BaseGetHandles(K2DArrayPoint*) const {}
const CColour* FillTool::GetCurrentColour() const
{
    return nullptr;
}
void FillTool::SetGhostNode(CPoint&, const CColour*)
{
    m_bGhostNode = true;
}
K2DLtGeneral FillTool::GetAppObjectToSpreadTransform() const
{
    return m_pSite->GetAppObjectToSpreadTransform();
}
void FillTool::ConstrainAnglePolar(CPoint origin, CPoint& point)
{
    m_pSite->ConstrainAnglePolar(origin, point);
}
int FillTool::GradientIndex(int handle) const
{
    return handle;
}
bool FillTool::IsPointOnLine(const CPoint&, int) const
{
    return false;
}
int FillTool::GetPercentageFromPoint(CPoint) const
{
    return 0;
}
CPoint FillTool::GetPointFromPercentage(int)
{
    return {};
}
void FillTool::DeleteGradientNode(int) {}
bool FillTool::CheckSize() const
{
    return true;
}

bool FillTool::ClearGhostNode()
{
    return std::exchange(m_bGhostNode, false);
}

K2DArrayPoint FillTool::GetEffectiveBBox(const CFill* fill)
{
    const CRect r = GetFillRect(fill);
    K2DArrayPoint outline;
    outline.Add({r.left, r.top});
    outline.Add({r.right, r.top});
    outline.Add({r.right, r.bottom});
    outline.Add({r.left, r.bottom});
    outline.AddClose(0);
    return outline;
}

void FillTool::InitContextButtons(CXTPCommandBars* bars)
{
    RegisterFillToolImagesOnce(bars);
    AddContextItem(IsTransparency() ? FillCmdTransEdit : FillCmdEdit);
    AddContextItem(FillCmdContext);
    AddContextItem(FillCmdEditType);
}

void FillTool::AddContextItem(int libraryCommand)
{
    const int host = ToolIdMap::GetInstance().MapIDToApp(FillToolKey, libraryCommand);
    if (host != -1)
        m_pSite->AddContextItem(host);
}

bool FillTool::RecognisedID(unsigned int hostCommand) const
{
    return ToolIdMap::GetInstance().MapIDToLibrary(FillToolKey, static_cast<int>(hostCommand)) != -1;
}

IToolHelper* FillTool::GetToolHelper() const
{
    IDocumentEx* document = GetDocument();
    IToolHelper* helper = document ? document->GetToolHelper() : nullptr;
    return helper ? helper : &g_nullHelper;
}

IToolHelper* FillTool::GetPickerHelper() const
{
    static std::atomic<bool> reported = false;
    IToolHelper* helper = GetToolHelper();
    // A tool without a site was reported as such.
    if (helper == &g_nullHelper && m_pSite != &g_nullSite && !reported.exchange(true))
        Report(kLineNoHelper, "the tool asked for a colour picker, but the site has no tool helper (IToolSite::"
                              "GetDocument, IDocumentEx::GetToolHelper): no colour can be chosen");
    return helper;
}

void FillTool::SnapNoTransform(const K2DDblPoint& in, K2DDblPoint& out)
{
    CPoint snapped;
    m_pSite->SnapNoTransform(in.Round(), snapped);
    out = K2DDblPoint(snapped);
}

int FillTool::HitPoint(const K2DArrayPoint& points, const CPoint& pt) const
{
    KestoPlatform::SIZE box{s_nHandleSize, s_nHandleSize};
    ClientToPaper(&box);
    // The box [p - size/2, p + size/2) compared wide: handles may lie at the range's edge.
    const auto inside = [](long long centre, int size, long long v) {
        return v >= centre - size / 2 && v < centre + size / 2;
    };
    for (int i = 0; i < points.GetSize(); ++i) {
        const CPoint p = points.GetAt(i);
        if (inside(p.x, box.cx, pt.x) && inside(p.y, box.cy, pt.y))
            return i;
    }
    return -1;
}

int FillTool::GetDefaultTolerance() const
{
    KestoPlatform::SIZE box{s_nHandleSize, s_nHandleSize};
    ClientToPaper(&box);
    return box.cx / 2;
}

float FillTool::GetAspectRatio() const
{
    const CRect box = GetObjectBBox();
    if (box.Width() <= 0)
        return 1.0f;
    return static_cast<float>(box.Height()) / static_cast<float>(box.Width());
}

K2DLtGeneral FillTool::GetNodeTransform(KCAngle& angle, CPoint& centre)
{
    return K2DLtGeneral::About(centre, K2DLtRotate(angle));
}

void FillTool::SnapAnglePoint(CPoint origin, CPoint& pt, bool flag)
{
    const int t = Kesto2D::RoundHalfAwayFromZero(m_pSite->GetAngleSnapTolerance());
    KestoPlatform::SIZE tolerance{t, t};
    ClientToPaper(&tolerance);

    CPoint angled = pt;
    ConstrainAngle(origin, angled, flag);
    CPoint snapped = pt;
    Snap(snapped, snapped);

    // An angle point outside the tolerance is no candidate: the point stays put, even where the
    // grid would have moved it. A tie goes to the angle.
    const bool inTolerance = std::abs(static_cast<long long>(angled.x) - pt.x) <= tolerance.cx &&
                             std::abs(static_cast<long long>(angled.y) - pt.y) <= tolerance.cy;
    const CPoint candidate = inTolerance ? angled : pt;
    const double d1 = Kesto2D::K2DGeometry::CalcDist(pt, candidate);
    const double d2 = Kesto2D::K2DGeometry::CalcDist(pt, snapped);
    pt = (d1 > d2 && !(snapped == pt)) ? snapped : candidate;
}

CPoint FillTool::PreserveAngle(CPoint centre, CPoint from, CPoint to, CPoint other)
{
    KCAngle a = CalcAngle(from, centre, to);
    if (a == 0)
        return other;
    return GetNodeTransform(a, centre).ApplyTo(other);
}

CPoint FillTool::CalculatePerpendicular(CPoint p0, CPoint p1, CPoint p2, CPoint& centre, CPoint& point, bool keepFirst,
                                        bool keepSecond)
{
    const double len1 = Kesto2D::K2DGeometry::CalcDist(p0, p1);
    const double len2 = Kesto2D::K2DGeometry::CalcDist(p0, p2);
    // A zero-length arm gives no ratio to keep.
    double r = 1.0;
    if (IsCreate()) {
        const CRect box = GetObjectBBox();
        if (box.Width() > 0)
            r = static_cast<double>(box.Height()) / box.Width();
    } else if (keepFirst) {
        r = len2 > 0 ? len1 / len2 : 1.0;
    } else if (keepSecond) {
        r = len1 > 0 ? len2 / len1 : 1.0;
    }

    const CPoint h = Kesto2D::OffsetPoint(centre, 1000, 0);
    const KCAngle alpha = CalcAngle(point, centre, h);
    const KCAngle beta = CalcAngle(h, centre, point);
    KCAngle theta = KCAngle::RightAngle;
    if (keepSecond)
        theta = CalcAngle(p1, p0, p2);
    else if (keepFirst)
        theta = CalcAngle(p2, p0, p1);

    K2DLtGeneral turn(K2DLtRotate{alpha});
    turn += K2DLtScale(r, 1.0);
    turn += K2DLtRotate(theta);
    turn += K2DLtRotate(beta);
    return K2DLtGeneral::About(centre, turn).ApplyTo(point);
}

unsigned int FillTool::TranslateNode(unsigned int node)
{
    if (node == FillCmdStart || node == FillCmdEnd || node == FillCmdSolid)
        return node;
    return static_cast<unsigned int>(ToolIdMap::GetInstance().MapIDToLibrary(FillToolKey, static_cast<int>(node)));
}

int FillTool::StopIndexOfNode(unsigned int node, int n) const
{
    switch (node) {
    case FillCmdStart: return 0;
    case FillCmdEnd: return n - 1;
    case FillCmdSolid: return GradientIndex(GetCurrentNode());
    default: return 0; // callers pass only the three colour nodes
    }
}

std::unique_ptr<CColour> FillTool::GetNodeColour(unsigned int node) const
{
    node = TranslateNode(node);
    const CFill* fill = GetFill();
    if (const auto* gradient = dynamic_cast<const KestoGDI::CFillGradient*>(fill)) {
        const KestoGDI::ColourIntPairs stops = gradient->GetColourIntPairs();
        const int n = stops.GetSize();
        const int index = StopIndexOfNode(node, n);
        if (index < 0 || index >= n)
            return nullptr;
        return stops.GetAt(index)->GetColour().Clone();
    }
    if (const auto* solid = dynamic_cast<const KestoGDI::CFillSolid*>(fill))
        return solid->GetColour().Clone();
    return nullptr;
}

void FillTool::SetNodeColour(unsigned int node, const CColour* colour)
{
    node = TranslateNode(node);
    const CFill* fill = GetFill();
    if (!fill || !colour)
        return;
    RefPtr<CFill> copy = fill->Clone();
    if (auto* gradient = dynamic_cast<KestoGDI::CFillGradient*>(copy.get())) {
        KestoGDI::ColourIntPairs stops = gradient->GetColourIntPairs();
        const int n = stops.GetSize();
        const int index = std::clamp(StopIndexOfNode(node, n), 0, std::max(n - 1, 0));
        if (KestoGDI::CColourIntPair* stop = stops.GetAt(index))
            stop->SetColour(*colour);
        gradient->SetColourIntPairs(stops);
    } else if (auto* solid = dynamic_cast<KestoGDI::CFillSolid*>(copy.get())) {
        solid->SetColour(*colour);
    } else if (copy->IsNone()) {
        copy = KestoKernel::MakeRef<KestoGDI::CFillSolid>(*colour, true);
    } else {
        return;
    }
    UpdateFill(copy.get(), nullptr);
}

void FillTool::AdjustNodeColour(unsigned int node)
{
    std::unique_ptr<CColour> current = GetNodeColour(node);
    if (!current)
        current = std::make_unique<KestoGDI::CRGBColour>(0xFFFFFF, nullptr, 0, 255);
    if (std::unique_ptr<CColour> chosen = ColourPicker(current.get()))
        SetNodeColour(node, chosen.get());
}

bool FillTool::IsNodeColourEnabled(unsigned int node) const
{
    switch (TranslateNode(node)) {
    case FillCmdStart:
    case FillCmdEnd: return dynamic_cast<const KestoGDI::CFillGradient*>(GetFill()) != nullptr;
    case FillCmdSolid: return true;
    default: return false;
    }
}

std::unique_ptr<CColour> FillTool::ColourPicker(const CColour* current)
{
    return std::unique_ptr<CColour>(GetPickerHelper()->ColourPicker(current, nullptr));
}

bool FillTool::ColourPicker(const CColour* current, std::unique_ptr<CColour>& result)
{
    CColour* chosen = nullptr;
    const bool confirmed = GetPickerHelper()->ColourPicker(current, chosen, nullptr);
    result.reset(chosen);
    return confirmed;
}

std::unique_ptr<CColour> FillTool::AskUserForNewColour(const CColour* current, CPoint where, KestoPlatform::CWnd* owner)
{
    return std::unique_ptr<CColour>(GetPickerHelper()->AskUserForNewColour(current, where, owner));
}

} // namespace KestoTool
