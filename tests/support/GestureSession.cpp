#include "support/GestureSession.h"

#include "kestotool/filltool/FillCommands.h"
#include "kestotool/filltool/FillToolFactory.h"
#include "kestotool/gdi/CFillWithStops.h"
#include "kestotool/gdi/CMonoColour.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/gdi/FillKinds.h"
#include "kestotool/geometry/CoordinateRange.h"
#include "kestotool/kernel/VerifyReporter.h"
#include "kestotool/platform/CCmdUI.h"
#include "kestotool/platform/CXTPControlComboBox.h"
#include "kestotool/tool/ToolIdMap.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <sstream>
#include <vector>

namespace KestoTest {

using KestoGDI::CFill;
using namespace KestoTool;

int ByteChoices::Int(int lo, int hi)
{
    // Four bytes per choice (zeros once the input is used up), folded into the span.
    std::uint32_t v = 0;
    for (int i = 0; i < 4; ++i)
        v = (v << 8) | (m_used < m_size ? m_data[m_used++] : 0u);
    const auto span = static_cast<std::uint64_t>(static_cast<std::int64_t>(hi) - lo) + 1;
    return static_cast<int>(lo + static_cast<std::int64_t>(v % span));
}

std::string InvalidFill(const CFill& fill, const KestoPlatform::CRuntimeClass* kind)
{
    if (fill.GetRuntimeClass() != kind)
        return std::string("kind changed to ") + fill.GetRuntimeClass()->m_lpszClassName;
    for (int i = 0; i < fill.GetControlCount(); ++i) {
        const Kesto2D::K2DDblPoint p = fill.GetControlPoint(i);
        if (!std::isfinite(p.x) || !std::isfinite(p.y) || std::abs(p.x) > Kesto2D::CoordinateLimit ||
            std::abs(p.y) > Kesto2D::CoordinateLimit)
            return "control point " + std::to_string(i) + " outside the range";
    }
    if (const auto* withStops = dynamic_cast<const KestoGDI::CFillWithStops*>(&fill)) {
        const KestoGDI::ColourIntPairs& stops = withStops->GetColourIntPairs();
        if (stops.GetSize() < withStops->GetMinStops())
            return "only " + std::to_string(stops.GetSize()) + " stops";
        int previous = 0;
        for (const auto& stop : stops) {
            if (stop.GetValue() < previous || stop.GetValue() > 10000)
                return "stop position " + std::to_string(stop.GetValue()) + " out of order or range";
            previous = stop.GetValue();
        }
    }
    return {};
}

void SessionSite::UpdateFill(const CFill* fill, const wchar_t* undoName)
{
    Check(fill);
    TestToolSite::UpdateFill(fill, undoName);
    Keep(fill, undoName);
}

void SessionSite::UpdateTransparency(const CFill* fill, const wchar_t* undoName, bool flag)
{
    Check(fill);
    TestToolSite::UpdateTransparency(fill, undoName, flag);
    Keep(fill, undoName);
}

void SessionSite::Check(const CFill* fill)
{
    if (failure.empty() && fill)
        failure = InvalidFill(*fill, kind);
}

void SessionSite::Keep(const CFill* fill, const wchar_t* undoName)
{
    commits.clear(); // the session checks commits as they come; their copies need not pile up
    if (!gesture.Absorb(undoName) && fill)
        history.Record(fill);
}

const KestoPlatform::CRuntimeClass* GestureSession::PickKind()
{
    // The kinds the factory makes tools for are fixed for the process: asked once, not per session.
    static const std::vector<const KestoPlatform::CRuntimeClass*> withTools = [] {
        std::vector<const KestoPlatform::CRuntimeClass*> classes;
        TestToolSite probe;
        for (const KestoGDI::FillKind& kind : KestoGDI::FillKinds::All()) {
            for (const KestoPlatform::CRuntimeClass* c : {kind.fillClass, kind.transparencyClass}) {
                const KestoKernel::RefPtr<CFill> sample = CFill::CreateFromClass(c);
                if (sample && FillToolFactory::Create(sample.get(), &probe))
                    classes.push_back(c);
            }
        }
        return classes;
    }();
    return withTools[static_cast<std::size_t>(Int(0, static_cast<int>(withTools.size()) - 1))];
}

KestoKernel::RefPtr<CFill> GestureSession::StartingFill(const KestoPlatform::CRuntimeClass* kind)
{
    KestoKernel::RefPtr<CFill> fill = CFill::CreateFromClass(kind);
    fill->SetDefaultControls(CRect(Coordinate(), Coordinate(), Coordinate(), Coordinate()));
    auto* withStops = dynamic_cast<KestoGDI::CFillWithStops*>(fill.get());
    if (!withStops || withStops->GetMaxStops() >= 0)
        return fill;
    const int n = Chance(80) ? Int(2, 8) : Int(2, 1000);
    // Positions are drawn first and sorted as numbers: the list is built in order, since a
    // session of up to 1,000 stops would otherwise spend most of its time sorting coloured stops.
    std::vector<int> values(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i)
        values[static_cast<std::size_t>(i)] = i == 0 ? 0 : i == n - 1 ? 10000 : Int(1, 9999);
    std::sort(values.begin(), values.end());
    KestoGDI::ColourIntPairs stops;
    for (const int value : values) {
        if (fill->IsTransparency())
            stops.Add(KestoGDI::CMonoColour(Int(0, 255)), value);
        else
            stops.Add(*AnyColour(), value);
    }
    withStops->SetColourIntPairs(stops);
    return fill;
}

void GestureSession::NewEnvironment()
{
    static constexpr int scales[] = {1000, 1000000, Kesto2D::CoordinateLimit};
    m_scale = scales[Int(0, 2)];
    m_site.pixelToPaper = std::pow(10.0, m_choices.Fraction() * 6 - 3);
    m_site.grid = Chance(30) ? Int(1, 100) : 0;
    m_site.angleStep = Chance(50) ? 1500 * Int(1, 6) : 0;
    m_site.angleSnapTolerance = Int(0, 50);
    CRect box(Coordinate(), Coordinate(), Coordinate(), Coordinate());
    switch (Int(0, 3)) {
    case 0: box.NormalizeRect(); break;                                          // ordinary
    case 1: box = CRect(box.left, box.top, box.left, box.top); break;            // empty
    case 2: break;                                                               // inverted or any
    default: box = CRect(box.left, box.top, box.left + 1, box.top + Int(1, 10)); // a sliver
    }
    m_site.objectBox = box;
}

std::unique_ptr<KestoGDI::CColour> GestureSession::AnyColour()
{
    if (Chance(30))
        return std::make_unique<KestoGDI::CMonoColour>(Int(0, 255));
    auto colour = std::make_unique<KestoGDI::CRGBColour>(KestoPlatform::RGB(Int(0, 255), Int(0, 255), Int(0, 255)));
    colour->SetAlpha(Int(0, 255));
    return colour;
}

CPoint GestureSession::NearHandleOrAnywhere()
{
    K2DArrayPoint handles;
    m_tool->GetHandles(&handles);
    if (handles.GetSize() == 0 || Chance(30))
        return AnyPoint();
    const CPoint h = handles.GetAt(Int(0, handles.GetSize() - 1));
    if (Chance(50))
        return h;
    // Somewhere on the way to another handle: on the line, often.
    const CPoint other = handles.GetAt(Int(0, handles.GetSize() - 1));
    const double t = m_choices.Fraction();
    return Kesto2D::SaturatePoint(std::llround(h.x + (static_cast<double>(other.x) - h.x) * t),
                                  std::llround(h.y + (static_cast<double>(other.y) - h.y) * t));
}

void GestureSession::Drag()
{
    CPoint p = NearHandleOrAnywhere();
    const unsigned flags = (Chance(30) ? DragFlagShift : 0) | (Chance(30) ? DragFlagCtrl : 0);
    m_site.gesture.Press(*m_tool, p, flags, m_tool->IndexFromPoint(p) == -1 && Chance(70));
    for (int moves = Int(1, 4); moves > 0; --moves) {
        p = Chance(50) ? NearHandleOrAnywhere() : AnyPoint();
        m_site.gesture.Move(p, flags);
    }
    const std::optional<KestoTool::ToolGesture::Step> step = m_site.gesture.Release(p, flags);
    m_site.Check(m_tool->GetFill());
    // The gesture's one step, when it changed the fill.
    if (step)
        m_site.history.Record(step->after.get());
}

void GestureSession::Drop()
{
    CPoint p = NearHandleOrAnywhere();
    const auto colour = AnyColour();
    m_tool->SetGhostNode(p, colour.get());
    m_tool->ClearGhostNode();
    m_tool->OnFillCellDrop(p, Chance(5) ? nullptr : colour.get());
}

void GestureSession::DeleteAStop()
{
    K2DArrayPoint handles;
    m_tool->GetHandles(&handles);
    m_tool->SetCurrentNode(Int(-1, handles.GetSize()));
    m_tool->OnKeyDown(KeyDelete, 1, 0);
}

void GestureSession::Command()
{
    const int first = ToolIdMap::GetInstance().MapIDToApp(FillToolKey, 0);
    const int id = Chance(90) ? first + Int(0, FillCommands::Count() - 1)
                              : Int(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    KestoPlatform::CXTPControlEdit box(id);
    box.SetValue(m_choices.Fraction() * 200 - 50);
    KestoPlatform::CXTPControlComboBox combo(id);
    if (Chance(80)) {
        combo.SetCurSel(combo.AddString(L"kind"));
        combo.SetItemData(0, Int(-1, 15));
    }
    KestoPlatform::CXTPControl* control = Chance(50) ? static_cast<KestoPlatform::CXTPControl*>(&box) : &combo;
    if (Chance(30))
        m_document.helper.Answer(*AnyColour());
    switch (Int(0, 2)) {
    case 0: m_tool->OnCmdMsg(id, KestoPlatform::CN_COMMAND, nullptr, nullptr); break;
    case 1: {
        KestoPlatform::CCmdUI ui(id, Chance(50) ? control : nullptr);
        m_tool->OnCmdMsg(id, KestoPlatform::CN_UPDATE_COMMAND_UI, &ui, nullptr);
        break;
    }
    default: {
        KestoPlatform::NMXTPCONTROL notify;
        notify.pControl = Chance(90) ? control : nullptr;
        notify.hdr.code = Chance(50) ? 65536u : 0u;
        long result = 0;
        KestoPlatform::AFX_NOTIFY extra{&result, &notify};
        const int code = Chance(80) ? (Chance(50) ? 100 : 0) : Int(0, 0xFFFF);
        m_tool->OnCmdMsg(id, KestoPlatform::CN_NOTIFY(code), &extra, nullptr);
    }
    }
    m_document.helper.pickerAnswers.clear();
}

void GestureSession::CellEdit()
{
    switch (Int(0, 3)) {
    case 0: m_tool->OnAlphaCellChanged(static_cast<unsigned char>(Int(0, 255))); break;
    case 1: m_tool->OnTintChanged(Int(-150, 150)); break;
    case 2: m_tool->OnFillCellChanged(AnyColour().get()); break;
    default: m_tool->SetCurrentNode(Int(-2, 12)); break;
    }
}

const char* GestureSession::Step(int op)
{
    // Percent shares of the operations: drags 35, drops 15, deletes 10, commands 20, cell
    // edits 12, a new environment 8.
    if (op < 35) {
        Drag();
        return "drag";
    }
    if (op < 50) {
        Drop();
        return "drop";
    }
    if (op < 60) {
        DeleteAStop();
        return "delete";
    }
    if (op < 80) {
        Command();
        return "command";
    }
    if (op < 92) {
        CellEdit();
        return "cell edit";
    }
    NewEnvironment();
    return "environment";
}

std::string GestureSession::UndoAndRedo()
{
    // Each step gives the tool exactly the fill that was recorded for it.
    UndoHistory& history = m_site.history;
    m_site.tool = nullptr; // the session hands the fills back itself now
    for (const bool back : {true, false}) {
        while (const CFill* fill = back ? history.Undo() : history.Redo()) {
            m_tool->SetFill(fill);
            if (!m_tool->GetFill()->IsEqual(history.Snapshot(history.Current())))
                return std::string(back ? "undo" : "redo") + " to step " + std::to_string(history.Current()) +
                       " gives another fill";
        }
    }
    return {};
}

std::string GestureSession::Play(int steps, bool commandsOnly)
{
    // Reports are allowed (a careless host earns them); a crash or a broken fill is not.
    KestoKernel::ScopedVerifyHandler quiet([](const KestoKernel::VerifyReport&) {});
    m_site.document = &m_document;
    NewEnvironment();
    m_site.kind = PickKind();
    const KestoKernel::RefPtr<CFill> start = StartingFill(m_site.kind);
    m_site.history.Record(start.get());
    m_tool = FillToolFactory::Create(start.get(), &m_site);
    m_site.tool = m_tool.get();
    m_site.bars = &m_bars;
    m_tool->InitContextButtons(&m_bars);

    std::ostringstream where;
    where << m_label << ": ";
    for (int step = 0; step < steps && !m_choices.Exhausted(); ++step) {
        const char* name = commandsOnly ? (Command(), "command") : Step(Int(0, 99));
        if (!m_site.failure.empty() || m_site.history.FirstChangedStep() != -1) {
            where << "step " << step << " (" << name << "): "
                  << (m_site.failure.empty() ? "a recorded fill changed after it was handed over" : m_site.failure);
            return where.str();
        }
    }
    if (std::string failure = UndoAndRedo(); !failure.empty()) {
        where << failure;
        return where.str();
    }
    return {};
}

} // namespace KestoTest
