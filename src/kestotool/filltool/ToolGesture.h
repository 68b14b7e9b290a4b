#pragma once

#include "kestotool/filltool/FillTool.h"
#include "kestotool/platform/Export.h"

#include <functional>
#include <optional>
#include <string>

namespace KestoTool {

// The host's side of one mouse gesture on a fill tool, which makes a gesture one undo step
// however many commits the tool sends while the mouse moves:
//   Press      remembers the tool's fill and starts the tool's drag;
//   Absorb     is asked by the host's UpdateFill / UpdateTransparency: during a gesture a commit
//              only shows at once (the host applies it without a step) and its undo name is kept;
//   Release    ends the tool's drag and answers the one step to record, or nothing when the
//              fill is the one the gesture started with.
// The host's IToolSite::IsInDrag and IsCreate answer InDrag() and IsCreate(). A tool that goes
// away mid-gesture (its fill changed kind) is let go with Cancel first. So that the artwork follows
// the hand, the show-now callback hands the host the tool's working fill after the press and after
// every move; the host paints it in place of the document's fill until the gesture ends.
class KESTO_API ToolGesture {
public:
    struct Step {
        RefPtr<const CFill> before; // the fill at the press; null when there was none
        RefPtr<const CFill> after;  // a copy of the fill the tool holds at the end
        std::wstring undoName;      // the last name the tool committed with; empty: the host names it
    };

    // Called with the tool's working fill while the gesture lasts (it is the tool's own object,
    // reshaped in place: copy it to keep it).
    using ShowNow = std::function<void(const CFill& working)>;
    void SetShowNow(ShowNow show) { m_showNow = std::move(show); }

    // Starts a gesture at a document point; create tells the tool the drag draws a new fill.
    void Press(FillTool& tool, CPoint at, unsigned flags, bool create = false);
    void Move(CPoint at, unsigned flags);
    std::optional<Step> Release(CPoint at, unsigned flags);
    // Forgets the gesture without ending the tool's drag and without a step.
    void Cancel();

    // A commit that reached the host: true when it belongs to the gesture under way (show it,
    // record nothing), false when the host records it as a step of its own.
    bool Absorb(const wchar_t* undoName);

    bool InDrag() const { return m_tool != nullptr; }
    bool IsCreate() const { return m_create; }
    // The fill at the press, for a host that must restore it (null outside a gesture).
    const CFill* PressFill() const { return m_before.get(); }

private:
    void Show() const;

    FillTool* m_tool = nullptr;
    RefPtr<const CFill> m_before;
    std::wstring m_undoName;
    bool m_create = false;
    ShowNow m_showNow;
};

} // namespace KestoTool
