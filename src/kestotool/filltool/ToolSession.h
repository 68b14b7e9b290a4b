#pragma once

#include "kestotool/filltool/FillTool.h"
#include "kestotool/filltool/FillToolFactory.h"
#include "kestotool/filltool/ToolGesture.h"
#include "kestotool/platform/CCmdTarget.h"
#include "kestotool/platform/CXTPCommandBars.h"
#include "kestotool/platform/Export.h"

#include <functional>
#include <memory>
#include <optional>

namespace KestoTool {

// The fill tool of one selection with its context toolbar, run the way every host runs them, so
// that a host writes only its IToolSite:
//   - Follow gives the tool the fill the document holds now; for a fill of another kind (a
//     kind chosen in the type combo, an undo) the tool and its toolbar are made anew through
//     FillToolFactory, but never inside one of the tool's own calls: the session routes the
//     toolbar's commands (OnCmdMsg) and the mouse (Press, Move, Release) and makes the new tool
//     once such a call has returned;
//   - ChangeKind, which the site's SetFillType and SetTransparencyType call, turns the fill
//     into one of the kind chosen, placed over the object, keeping the colours that carry
//     over, and commits it through the site's UpdateFill or UpdateTransparency;
//   - gestures go through a ToolGesture (one undo step each), which the site's IsInDrag,
//     IsCreate and UpdateFill ask.
// The site's UpdateFill records the fill and calls Follow with it.
class KESTO_API ToolSession : public KestoPlatform::CCmdTarget {
public:
    // How the session's tools are made: by the factory (FillToolFactory::Create, or
    // CreateWrapped as the editor dialogs hold them), with their context toolbar or without.
    using Maker = std::unique_ptr<FillTool> (*)(const CFill* fill, IToolSite* site);
    enum class Toolbar { Shown, None };

    // The site the tools talk to; it must outlive the session.
    explicit ToolSession(IToolSite& site, Maker maker = &FillToolFactory::Create, Toolbar toolbar = Toolbar::Shown);
    ~ToolSession() override;
    ToolSession(const ToolSession&) = delete;
    ToolSession& operator=(const ToolSession&) = delete;

    // Called before the tool and its toolbar go (a toolbar showing them lets go), and after a
    // new tool (or none) runs with its toolbar (show it, repaint, ask for the hint).
    void SetToolAboutToChange(std::function<void()> aboutToChange) { m_aboutToChange = std::move(aboutToChange); }
    void SetToolChanged(std::function<void()> changed) { m_changed = std::move(changed); }

    // A host with an event loop hands the session a way to post work to it: a new tool is then
    // made from there, so that no call path (a key, a drop, a command the host sends the tool
    // itself) can destroy a tool inside its own call. Flush makes it at once.
    void SetPost(std::function<void(std::function<void()>)> post) { m_post = std::move(post); }

    // A new selection (or the other of its fill and transparency): the tool is made anew for
    // fill (null: none, no tool), whatever its kind.
    void Start(const CFill* fill);
    // The fill or transparency the selection holds now, after an edit or an undo: the tool goes
    // on with it, or is made anew for another kind.
    void Follow(const CFill* fill);
    // Makes now the new tool asked for, unless one of the tool's calls is under way.
    void Flush();
    // The running tool; null for no fill or a kind without a tool.
    FillTool* Tool() const { return m_tool.get(); }
    KestoPlatform::CXTPCommandBars& Bars() { return *m_bars; }
    ToolGesture& Gesture() { return m_gesture; }

    // A gesture of the running tool, from the press at a document point; create draws a new
    // fill. False without a tool.
    bool Press(CPoint at, unsigned flags, bool create);
    void Move(CPoint at, unsigned flags);
    // The gesture's one step, or nothing when it changed nothing.
    std::optional<ToolGesture::Step> Release(CPoint at, unsigned flags);

    // A kind chosen in the type combo: the edited fill becomes one of that kind, committed as a
    // step of its own ("Fill Type" or "Transparency Type").
    void ChangeKind(const KestoPlatform::CRuntimeClass* kind);
    // A fill of the kind made from current: placed over box, with current's stops where both
    // have stops, or a plain colour's colour running to white. Null for a class that is no fill.
    static RefPtr<CFill> Convert(const CFill* current, const KestoPlatform::CRuntimeClass* kind, const CRect& box);

    // Routes a toolbar command, update request or notification to the tool, then makes the new
    // tool it may have asked for. False without a tool or for an ID that is not the tools'.
    bool OnCmdMsg(int id, int code, void* extra, KestoPlatform::AFX_CMDHANDLERINFO* info) override;

private:
    // Runs f as one of the tool's own calls: a new tool asked for meanwhile is made after it.
    template <class F>
    auto Within(F&& f);
    // The tool is to be made anew for m_fill: now, once the tool's call under way has returned,
    // or from the host's event loop.
    void RequestRebuild();
    void Rebuild();

    IToolSite& m_site;
    Maker m_maker;
    Toolbar m_toolbar;
    std::unique_ptr<KestoPlatform::CXTPCommandBars> m_bars;
    std::unique_ptr<FillTool> m_tool;
    ToolGesture m_gesture;
    RefPtr<const CFill> m_fill; // what the tool edits, or is to edit once rebuilt
    bool m_rebuild = false;     // the tool is to be made anew for m_fill
    int m_depth = 0;            // calls of the tool under way
    bool m_posted = false;      // a rebuild waits in the host's event loop
    std::function<void(std::function<void()>)> m_post;
    std::function<void()> m_aboutToChange;
    std::function<void()> m_changed;
};

} // namespace KestoTool
