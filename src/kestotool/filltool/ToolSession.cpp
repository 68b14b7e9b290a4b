#include "kestotool/filltool/ToolSession.h"

#include "kestotool/gdi/CFillSolid.h"
#include "kestotool/gdi/CFillWithStops.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/tool/Module.h"

#include <utility>

namespace KestoTool {

ToolSession::ToolSession(IToolSite& site, Maker maker, Toolbar toolbar)
    : m_site(site), m_maker(maker), m_toolbar(toolbar), m_bars(std::make_unique<KestoPlatform::CXTPCommandBars>())
{
}

ToolSession::~ToolSession()
{
    m_gesture.Cancel();
    m_tool.reset();
}

template <class F>
auto ToolSession::Within(F&& f)
{
    struct Depth {
        ToolSession& session;
        explicit Depth(ToolSession& s) : session(s) { ++session.m_depth; }
        ~Depth()
        {
            --session.m_depth;
            if (!session.m_post)
                session.Flush();
        }
    } depth(*this);
    return f();
}

void ToolSession::Start(const CFill* fill)
{
    m_fill = RefPtr<const CFill>(fill);
    RequestRebuild();
}

void ToolSession::Follow(const CFill* fill)
{
    const RefPtr<const CFill> previous = std::exchange(m_fill, RefPtr<const CFill>(fill));
    const bool sameKind = fill && previous && fill->GetRuntimeClass() == previous->GetRuntimeClass();
    if (m_rebuild || !sameKind) {
        if (m_tool || fill || m_rebuild)
            RequestRebuild();
        return;
    }
    if (m_tool && m_tool->GetFill() != fill)
        m_tool->SetFill(fill);
}

void ToolSession::RequestRebuild()
{
    m_rebuild = true;
    if (!m_post) {
        Flush();
        return;
    }
    if (!std::exchange(m_posted, true))
        m_post([this] {
            m_posted = false;
            Flush();
        });
}

void ToolSession::Flush()
{
    if (m_rebuild && m_depth == 0)
        Rebuild();
}

void ToolSession::Rebuild()
{
    m_rebuild = false;
    if (m_aboutToChange)
        m_aboutToChange();
    m_gesture.Cancel();
    m_tool.reset();
    // One set of bars for the session's life: the tools register their images with it once.
    m_bars->RemoveAll();
    if (m_fill)
        m_tool = m_maker(m_fill.get(), &m_site);
    if (m_tool && m_toolbar == Toolbar::Shown)
        m_tool->InitContextButtons(m_bars.get());
    if (m_changed)
        m_changed();
}

bool ToolSession::Press(CPoint at, unsigned flags, bool create)
{
    if (!m_tool)
        return false;
    Within([&] { m_gesture.Press(*m_tool, at, flags, create); });
    return true;
}

void ToolSession::Move(CPoint at, unsigned flags)
{
    Within([&] { m_gesture.Move(at, flags); });
}

std::optional<ToolGesture::Step> ToolSession::Release(CPoint at, unsigned flags)
{
    return Within([&] { return m_gesture.Release(at, flags); });
}

bool ToolSession::OnCmdMsg(int id, int code, void* extra, KestoPlatform::AFX_CMDHANDLERINFO* info)
{
    if (!m_tool)
        return false;
    return Within([&] { return m_tool->OnCmdMsg(id, code, extra, info); });
}

void ToolSession::ChangeKind(const KestoPlatform::CRuntimeClass* kind)
{
    const RefPtr<CFill> fresh = Convert(m_fill.get(), kind, m_site.GetObjectBBox());
    if (!fresh)
        return;
    Within([&] {
        // A step of its own, also when it comes during a drag, named as the type box is.
        m_gesture.Cancel();
        if (fresh->IsTransparency())
            m_site.UpdateTransparency(fresh.get(), Module::Get().LoadDialogText(L"Transparency Type").GetString(),
                                      false);
        else
            m_site.UpdateFill(fresh.get(), Module::Get().LoadDialogText(L"Fill Type").GetString());
    });
}

RefPtr<CFill> ToolSession::Convert(const CFill* current, const KestoPlatform::CRuntimeClass* kind, const CRect& box)
{
    RefPtr<CFill> fresh = CFill::CreateFromClass(kind);
    if (!fresh)
        return {};
    fresh->SetDefaultControls(box);
    auto* stops = dynamic_cast<KestoGDI::CFillWithStops*>(fresh.get());
    if (!stops || !current || current->IsTransparency() != fresh->IsTransparency())
        return fresh;
    if (const auto* oldStops = dynamic_cast<const KestoGDI::CFillWithStops*>(current)) {
        stops->SetColourIntPairs(oldStops->GetColourIntPairs());
    } else if (const auto* solid = dynamic_cast<const KestoGDI::CFillSolid*>(current)) {
        KestoGDI::ColourIntPairs startToWhite;
        startToWhite.Add(solid->GetColour(), 0);
        startToWhite.Add(KestoGDI::CRGBColour(KestoPlatform::RGB(255, 255, 255)), 10000);
        stops->SetColourIntPairs(startToWhite);
    }
    return fresh;
}

} // namespace KestoTool
