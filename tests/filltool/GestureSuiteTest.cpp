// Randomized gesture sessions on every tool the factory makes, as a careless host and a busy
// user would drive them: drags with Shift and Ctrl (creating or on handles), colour drops on and
// off the line, Delete, every toolbar command through OnCmdMsg with host IDs, alpha, tint and
// level edits, object boxes that are empty or inverted, pixel-to-paper scales from 0.001 to
// 1000, coordinates across the whole range and 2 to 1,000 stops. After every commit the fill
// must still be a valid fill of its kind; a session is then undone to its start and redone to
// its end through the host's undo history.
//
// Each session is replayable: a failure names its seed and step. KESTO_GESTURE_SEED=<seed> runs
// that one session; KESTO_GESTURE_SESSIONS and KESTO_GESTURE_STEPS make a longer soak.
#include "filltool/FillCommands.h"
#include "filltool/FillToolFactory.h"
#include "gdi/CFillWithStops.h"
#include "gdi/CMonoColour.h"
#include "gdi/CRGBColour.h"
#include "gdi/FillKinds.h"
#include "geometry/CoordinateRange.h"
#include "kernel/VerifyReporter.h"
#include "platform/CCmdUI.h"
#include "platform/CXTPControlComboBox.h"
#include "support/TestDocument.h"
#include "support/TestToolSite.h"
#include "support/UndoHistory.h"
#include "tool/ToolIdMap.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <random>
#include <sstream>
#include <string>

using namespace KestoTool;
using KestoTest::UndoHistory;

namespace {

long EnvOr(const char* name, long fallback)
{
    const char* v = std::getenv(name);
    return v ? std::strtol(v, nullptr, 10) : fallback;
}

// What is wrong with a fill that a tool of its kind committed; empty when nothing is.
std::string Invalid(const CFill& fill, const Platform::CRuntimeClass* kind)
{
    if (fill.GetRuntimeClass() != kind)
        return std::string("kind changed to ") + fill.GetRuntimeClass()->m_lpszClassName;
    for (int i = 0; i < fill.GetControlCount(); ++i) {
        const K2DDblPoint p = fill.GetControlPoint(i);
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

// The host: records every commit outside a gesture as an undo step, merges a gesture's commits
// into the one step recorded at its end, and checks each commit as it arrives.
class SuiteSite : public KestoTest::TestToolSite {
public:
    UndoHistory history;
    const Platform::CRuntimeClass* kind = nullptr;
    std::string failure;

    void UpdateFill(const CFill* fill, const wchar_t* undoName) override
    {
        Check(fill);
        TestToolSite::UpdateFill(fill, undoName);
        Keep(fill);
    }
    void UpdateTransparency(const CFill* fill, const wchar_t* undoName, bool flag) override
    {
        Check(fill);
        TestToolSite::UpdateTransparency(fill, undoName, flag);
        Keep(fill);
    }
    void Check(const CFill* fill)
    {
        if (failure.empty() && fill)
            failure = Invalid(*fill, kind);
    }

private:
    void Keep(const CFill* fill)
    {
        commits.clear();  // the suite checks commits here; their copies need not pile up
        if (!inDrag && fill)
            history.Record(fill);
    }
};

class GestureSession {
public:
    explicit GestureSession(std::uint64_t seed) : m_seed(seed), m_rng(seed) {}

    // Plays the session; answers an empty string or what went wrong, with its seed and step.
    std::string Play(int steps);

private:
    int Int(int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(m_rng); }
    bool Chance(double p) { return std::bernoulli_distribution(p)(m_rng); }
    int Coordinate() { return Int(-m_scale, m_scale); }
    CPoint AnyPoint() { return {Coordinate(), Coordinate()}; }
    CPoint NearHandleOrAnywhere();
    std::unique_ptr<KestoGDI::CColour> AnyColour();
    const Platform::CRuntimeClass* PickKind();
    RefPtr<CFill> StartingFill(const Platform::CRuntimeClass* kind);
    void NewEnvironment();

    void Drag();
    void Drop();
    void DeleteAStop();
    void Command();
    void CellEdit();
    std::string Step(int op);

    std::uint64_t m_seed;
    std::mt19937_64 m_rng;
    int m_scale = 1000;
    KestoTest::TestDocument m_document;
    SuiteSite m_site;
    std::unique_ptr<FillTool> m_tool;
    Platform::CXTPCommandBars m_bars;
};

const Platform::CRuntimeClass* GestureSession::PickKind()
{
    std::vector<const Platform::CRuntimeClass*> withTools;
    KestoTest::TestToolSite probe;
    for (const KestoGDI::FillKind& kind : KestoGDI::FillKinds::All()) {
        for (const Platform::CRuntimeClass* c : {kind.fillClass, kind.transparencyClass}) {
            const RefPtr<CFill> sample = CFill::CreateFromClass(c);
            if (sample && FillToolFactory::Create(sample.get(), &probe))
                withTools.push_back(c);
        }
    }
    return withTools[static_cast<std::size_t>(Int(0, static_cast<int>(withTools.size()) - 1))];
}

RefPtr<CFill> GestureSession::StartingFill(const Platform::CRuntimeClass* kind)
{
    RefPtr<CFill> fill = CFill::CreateFromClass(kind);
    fill->SetDefaultControls(CRect(Coordinate(), Coordinate(), Coordinate(), Coordinate()));
    if (auto* withStops = dynamic_cast<KestoGDI::CFillWithStops*>(fill.get()); withStops && withStops->GetMaxStops() < 0) {
        const int n = Chance(0.8) ? Int(2, 8) : Int(2, 1000);
        KestoGDI::ColourIntPairs stops;
        for (int i = 0; i < n; ++i) {
            const int value = i == 0 ? 0 : i == n - 1 ? 10000 : Int(1, 9999);
            stops.Add(fill->IsTransparency() ? static_cast<const KestoGDI::CColour&>(KestoGDI::CMonoColour(Int(0, 255)))
                                             : *AnyColour(),
                      value);
        }
        stops.Sort();
        withStops->SetColourIntPairs(stops);
    }
    return fill;
}

void GestureSession::NewEnvironment()
{
    static constexpr int scales[] = {1000, 1000000, Kesto2D::CoordinateLimit};
    m_scale = scales[Int(0, 2)];
    m_site.pixelToPaper = std::pow(10.0, std::uniform_real_distribution<double>(-3, 3)(m_rng));
    m_site.grid = Chance(0.3) ? Int(1, 100) : 0;
    m_site.angleStep = Chance(0.5) ? 1500 * Int(1, 6) : 0;
    m_site.angleSnapTolerance = Int(0, 50);
    const int shape = Int(0, 3);  // ordinary, empty, inverted, a sliver
    CRect box(Coordinate(), Coordinate(), Coordinate(), Coordinate());
    if (shape == 0)
        box.NormalizeRect();
    else if (shape == 1)
        box = CRect(box.left, box.top, box.left, box.top);
    else if (shape == 3)
        box = CRect(box.left, box.top, box.left + 1, box.top + Int(1, 10));
    m_site.objectBox = box;
}

std::unique_ptr<KestoGDI::CColour> GestureSession::AnyColour()
{
    if (Chance(0.3))
        return std::make_unique<KestoGDI::CMonoColour>(Int(0, 255));
    auto colour = std::make_unique<KestoGDI::CRGBColour>(Platform::RGB(Int(0, 255), Int(0, 255), Int(0, 255)));
    colour->SetAlpha(Int(0, 255));
    return colour;
}

CPoint GestureSession::NearHandleOrAnywhere()
{
    K2DArrayPoint handles;
    m_tool->GetHandles(&handles);
    if (handles.GetSize() == 0 || Chance(0.3))
        return AnyPoint();
    const CPoint h = handles.GetAt(Int(0, handles.GetSize() - 1));
    if (Chance(0.5))
        return h;
    // Somewhere on the way to another handle: on the line, often.
    const CPoint other = handles.GetAt(Int(0, handles.GetSize() - 1));
    const double t = std::uniform_real_distribution<double>(0, 1)(m_rng);
    return Kesto2D::SaturatePoint(std::llround(h.x + (static_cast<double>(other.x) - h.x) * t),
                                  std::llround(h.y + (static_cast<double>(other.y) - h.y) * t));
}

void GestureSession::Drag()
{
    CPoint p = NearHandleOrAnywhere();
    const unsigned flags = (Chance(0.3) ? DragFlagShift : 0) | (Chance(0.3) ? DragFlagCtrl : 0);
    m_site.create = m_tool->IndexFromPoint(p) == -1 && Chance(0.7);
    m_site.inDrag = true;
    m_tool->OnDragStart(p, flags);
    for (int moves = Int(1, 4); moves > 0; --moves) {
        p = Chance(0.5) ? NearHandleOrAnywhere() : AnyPoint();
        m_tool->OnDragChange(p, flags);
    }
    m_tool->OnDragEnd(p, flags);
    m_site.inDrag = false;
    m_site.create = false;
    // The gesture's one step: the geometry the tool holds now.
    m_site.Check(m_tool->GetFill());
    m_site.history.Record(m_tool->GetFill());
}

void GestureSession::Drop()
{
    CPoint p = NearHandleOrAnywhere();
    const auto colour = AnyColour();
    m_tool->SetGhostNode(p, colour.get());
    m_tool->ClearGhostNode();
    m_tool->OnFillCellDrop(p, Chance(0.05) ? nullptr : colour.get());
}

void GestureSession::DeleteAStop()
{
    K2DArrayPoint handles;
    m_tool->GetHandles(&handles);
    if (handles.GetSize() > 0)
        m_tool->SetCurrentNode(Int(-1, handles.GetSize()));
    m_tool->OnKeyDown(KeyDelete, 1, 0);
}

void GestureSession::Command()
{
    const int first = ToolIdMap::GetInstance().MapIDToApp(FillToolKey, 0);
    const int id = Chance(0.9) ? first + Int(0, FillCommands::Count() - 1) : Int(-5, 70000);
    Platform::CXTPControlEdit box(id);
    box.SetValue(std::uniform_real_distribution<double>(-50, 150)(m_rng));
    Platform::CXTPControlComboBox combo(id);
    combo.SetCurSel(combo.AddString(L"kind"));
    combo.SetItemData(0, static_cast<unsigned long>(Int(-1, 15)));
    Platform::CXTPControl* control = Chance(0.5) ? static_cast<Platform::CXTPControl*>(&box) : &combo;
    if (Chance(0.3))
        m_document.helper.Answer(*AnyColour());
    switch (Int(0, 2)) {
    case 0: m_tool->OnCmdMsg(id, Platform::CN_COMMAND, nullptr, nullptr); break;
    case 1: {
        Platform::CCmdUI ui(id, Chance(0.5) ? control : nullptr);
        m_tool->OnCmdMsg(id, Platform::CN_UPDATE_COMMAND_UI, &ui, nullptr);
        break;
    }
    default: {
        Platform::NMXTPCONTROL notify;
        notify.pControl = Chance(0.9) ? control : nullptr;
        notify.hdr.code = Chance(0.5) ? 65536u : 0u;
        long result = 0;
        Platform::AFX_NOTIFY extra{&result, &notify};
        m_tool->OnCmdMsg(id, Platform::CN_NOTIFY(Chance(0.5) ? 100 : 0), &extra, nullptr);
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

std::string GestureSession::Step(int op)
{
    const char* names[] = {"drag", "drop", "delete", "command", "cell edit", "environment"};
    switch (op) {
    case 0: Drag(); break;
    case 1: Drop(); break;
    case 2: DeleteAStop(); break;
    case 3: Command(); break;
    case 4: CellEdit(); break;
    default: NewEnvironment(); break;
    }
    return names[op];
}

std::string GestureSession::Play(int steps)
{
    // Reports are allowed (a careless host earns them); a crash or a broken fill is not.
    Kernel::ScopedVerifyHandler quiet([](const Kernel::VerifyReport&) {});
    m_site.document = &m_document;
    NewEnvironment();
    m_site.kind = PickKind();
    const RefPtr<CFill> start = StartingFill(m_site.kind);
    m_site.history.Record(start.get());
    m_tool = FillToolFactory::Create(start.get(), &m_site);
    m_site.tool = m_tool.get();
    m_site.bars = &m_bars;
    m_tool->InitContextButtons(&m_bars);

    std::ostringstream where;
    for (int step = 0; step < steps; ++step) {
        static constexpr int weights[] = {35, 15, 10, 20, 12, 8};
        const int op = std::discrete_distribution<int>(std::begin(weights), std::end(weights))(m_rng);
        const std::string name = Step(op);
        if (!m_site.failure.empty() || m_site.history.FirstChangedStep() != -1) {
            where << "seed " << m_seed << " step " << step << " (" << name << "): "
                  << (m_site.failure.empty() ? "a recorded fill changed after it was handed over" : m_site.failure);
            return where.str();
        }
    }

    // Undo to the start and redo to the end: each step gives the tool exactly what was recorded.
    UndoHistory& history = m_site.history;
    m_site.tool = nullptr;  // the suite hands fills back itself now
    for (int round = 0; round < 2; ++round) {
        while (const CFill* fill = round == 0 ? history.Undo() : history.Redo()) {
            m_tool->SetFill(fill);
            if (!m_tool->GetFill()->IsEqual(history.Snapshot(history.Current()))) {
                where << "seed " << m_seed << ": " << (round == 0 ? "undo" : "redo") << " to step "
                      << history.Current() << " gives another fill";
                return where.str();
            }
        }
    }
    return {};
}

} // namespace

TEST(GestureSuite, RandomSessionsKeepEveryFillValidAndUndoRestoresEachStep)
{
    KestoTool::Init(40000, 40100);
    const long only = EnvOr("KESTO_GESTURE_SEED", -1);
    const long sessions = only >= 0 ? 1 : EnvOr("KESTO_GESTURE_SESSIONS", 40);
    const int steps = static_cast<int>(EnvOr("KESTO_GESTURE_STEPS", 150));
    for (long i = 0; i < sessions; ++i) {
        const std::uint64_t seed = only >= 0 ? static_cast<std::uint64_t>(only) : 1000 + static_cast<std::uint64_t>(i);
        const std::string failure = GestureSession(seed).Play(steps);
        EXPECT_EQ(failure, "") << "replay with KESTO_GESTURE_SEED=" << seed;
    }
}
