#include "kestotool/dialogs/ExpandingFillPreviewDlg.h"

#include "kestotool/filltool/FillToolFactory.h"
#include "kestotool/gdi/CFillWithStops.h"
#include "kestotool/geometry/Rounding.h"
#include "kestotool/platform/ScreenMetrics.h"
#include "kestotool/resources/ResourceIds.h"

namespace KestoTool {

namespace {

// An editor opened for an object without extent previews a square of 1000 units.
CRect PreviewRect(const CRect& objectRect)
{
    return objectRect.IsRectEmpty() ? CRect(0, 0, 1000, 1000) : objectRect;
}

} // namespace

ExpandingFillPreviewDlg::ExpandingFillPreviewDlg(int templateId, IDocumentEx* document, const KestoGDI::CFill* fill,
                                                 const CRect& objectRect, Platform::CWnd* parent, CommitRule rule)
    : KCResourceDialog(templateId, parent), m_document(document), m_rule(rule), m_objectRect(PreviewRect(objectRect))
{
    SetEditedFill(fill);
}

ExpandingFillPreviewDlg::~ExpandingFillPreviewDlg() = default;

void ExpandingFillPreviewDlg::SetEditedFill(const KestoGDI::CFill* fill)
{
    m_fill = fill ? fill->Clone() : nullptr;
    if (const auto* stops = dynamic_cast<const KestoGDI::CFillWithStops*>(m_fill.get()))
        m_stops = stops->GetColourIntPairs();
    if (std::unique_ptr<FillTool> tool = FillToolFactory::Create(m_fill.get(), this))
        m_tool = std::move(tool);
    m_preview.SetFill(m_fill.get());
}

void ExpandingFillPreviewDlg::DoDataExchange(Platform::CDataExchange* pDX)
{
    KCResourceDialog::DoDataExchange(pDX);
    Platform::DDX_Control(pDX, IDC_EDITOR_PREVIEW, m_preview);
}

bool ExpandingFillPreviewDlg::OnInitDialog()
{
    KCResourceDialog::OnInitDialog();
    m_preview.SetBounds(m_objectRect);
    m_preview.SetFill(m_fill.get());
    if (!m_helperSetting) {
        if (Platform::CWnd* third = GetDlgItem(IDC_PREVIEW_EXPAND))
            third->ShowWindow(Platform::SW_HIDE);
    }
    return true;
}

void ExpandingFillPreviewDlg::OnOK()
{
    const KestoGDI::CFill* edited = m_rule == CommitRule::ToolOnly && m_tool ? m_tool->GetFill() : m_fill.get();
    m_result = edited ? edited->Clone() : nullptr;
    KCResourceDialog::OnOK();
}

void ExpandingFillPreviewDlg::ClientToPaper(Platform::SIZE* size)
{
    const double scale = Platform::ScreenMetrics::GetLogPixelsX() / 96.0 * m_preview.GetUnitsPerPixel();
    size->cx = Kesto2D::RoundHalfAwayFromZero(size->cx * scale);
    size->cy = Kesto2D::RoundHalfAwayFromZero(size->cy * scale);
}

void ExpandingFillPreviewDlg::UpdateFill(const KestoGDI::CFill* fill, const wchar_t*)
{
    Commit(fill);
}

void ExpandingFillPreviewDlg::UpdateTransparency(const KestoGDI::CFill* fill, const wchar_t*, bool)
{
    Commit(fill);
}

void ExpandingFillPreviewDlg::Commit(const KestoGDI::CFill* fill)
{
    if (!fill || !m_tool)
        return;
    m_tool->SetFill(fill);
    if (m_rule == CommitRule::ToolOnly)
        return;
    const auto* committed = dynamic_cast<const KestoGDI::CFillWithStops*>(fill);
    if (!committed)
        return;
    m_stops = committed->GetColourIntPairs();
    RefPtr<KestoGDI::CFill> rebuilt = fill->Clone();
    static_cast<KestoGDI::CFillWithStops&>(*rebuilt).SetColourIntPairs(m_stops);
    m_fill = rebuilt;
    m_preview.SetFill(m_fill.get());
}

void ExpandingFillPreviewDlg::PreviewPress(CPoint point, unsigned flags)
{
    if (!m_tool)
        return;
    m_inDrag = true;
    m_tool->OnDragStart(point, flags);
}

void ExpandingFillPreviewDlg::PreviewMove(CPoint point, unsigned flags)
{
    if (m_tool && m_inDrag)
        m_tool->OnDragChange(point, flags);
}

void ExpandingFillPreviewDlg::PreviewRelease(CPoint point, unsigned flags)
{
    if (!m_tool || !m_inDrag)
        return;
    m_tool->OnDragEnd(point, flags);
    m_inDrag = false;
    // A geometry drag reshapes the tool's copy and commits nothing: its end is the commit.
    Commit(m_tool->GetFill());
}

} // namespace KestoTool
