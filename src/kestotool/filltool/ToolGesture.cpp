#include "kestotool/filltool/ToolGesture.h"

namespace KestoTool {

void ToolGesture::Press(FillTool& tool, CPoint at, unsigned flags, bool create)
{
    // A copy, since the tool reshapes its own fill while the drag lasts.
    const CFill* fill = tool.GetFill();
    m_before = fill ? RefPtr<const CFill>(fill->Clone()) : nullptr;
    m_undoName.clear();
    m_create = create;
    m_tool = &tool;
    tool.OnDragStart(at, flags);
    Show();
}

void ToolGesture::Move(CPoint at, unsigned flags)
{
    if (!m_tool)
        return;
    m_tool->OnDragChange(at, flags);
    Show();
}

void ToolGesture::Show() const
{
    if (m_showNow && m_tool && m_tool->GetFill())
        m_showNow(*m_tool->GetFill());
}

std::optional<ToolGesture::Step> ToolGesture::Release(CPoint at, unsigned flags)
{
    if (!m_tool)
        return std::nullopt;
    // The tool's last commit arrives inside OnDragEnd, so the gesture lasts until it returns.
    m_tool->OnDragEnd(at, flags);
    // A copy: the tool goes on editing its own in the next gesture.
    const CFill* fill = m_tool->GetFill();
    Step step{std::move(m_before), fill ? RefPtr<const CFill>(fill->Clone()) : nullptr, std::move(m_undoName)};
    Cancel();
    if (!step.after || (step.before && step.before->IsEqual(*step.after)))
        return std::nullopt;
    return step;
}

void ToolGesture::Cancel()
{
    m_tool = nullptr;
    m_before = nullptr;
    m_undoName.clear();
    m_create = false;
}

bool ToolGesture::Absorb(const wchar_t* undoName)
{
    if (!m_tool)
        return false;
    if (undoName)
        m_undoName = undoName;
    return true;
}

} // namespace KestoTool
