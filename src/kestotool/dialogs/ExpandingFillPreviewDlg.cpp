#include "kestotool/dialogs/ExpandingFillPreviewDlg.h"

#include "kestotool/filltool/FillToolFactory.h"
#include "kestotool/filltool/FillToolImages.h"
#include "kestotool/gdi/CFillWithStops.h"
#include "kestotool/geometry/Rounding.h"
#include "kestotool/platform/ScreenMetrics.h"
#include "kestotool/resources/ResourceIds.h"
#include "kestotool/tool/Module.h"

#include <cmath>
#include <cwchar>

namespace KestoTool {

namespace {

// An editor opened for an object without extent previews a square of 1000 units.
CRect PreviewRect(const CRect& objectRect)
{
    return objectRect.IsRectEmpty() ? CRect(0, 0, 1000, 1000) : objectRect;
}

// The window's keys as the tool's drag flags.
unsigned DragFlagsOf(unsigned keys)
{
    return (keys & KestoPlatform::MK_SHIFT ? DragFlagShift : 0u) |
           (keys & KestoPlatform::MK_CONTROL ? DragFlagCtrl : 0u);
}

void ShowImage(KestoPlatform::CButton& button, const wchar_t* name, int toolTipId)
{
    button.SetImage(LoadXTPImage(name));
    button.SetToolTipText(Module::Get().LoadString(toolTipId));
}

} // namespace

ExpandingFillPreviewDlg::ExpandingFillPreviewDlg(int templateId, IDocumentEx* document, const KestoGDI::CFill* fill,
                                                 const CRect& objectRect, KestoPlatform::CWnd* parent, CommitRule rule)
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
    if (FillToolFactory::HasTool(m_fill.get())) {
        m_session.Start(m_fill.get());
        m_session.Flush();
    }
    m_preview.SetFill(m_fill.get());
    OnEditedFillChanged();
}

const KestoPlatform::AFX_MSGMAP* ExpandingFillPreviewDlg::GetMessageMap() const
{
    using KestoPlatform::MessageMap::Control;
    static const KestoPlatform::AFX_MSGMAP_ENTRY entries[] = {
        Control<&ExpandingFillPreviewDlg::OnZoomIn>(IDC_PREVIEW_ZOOM_IN, KestoPlatform::BN_CLICKED),
        Control<&ExpandingFillPreviewDlg::OnZoomOut>(IDC_PREVIEW_ZOOM_OUT, KestoPlatform::BN_CLICKED),
        Control<&ExpandingFillPreviewDlg::OnExpand>(IDC_PREVIEW_EXPAND, KestoPlatform::BN_CLICKED),
        Control<&ExpandingFillPreviewDlg::OnZoomSelected>(IDC_PREVIEW_ZOOM_COMBO, KestoPlatform::CBN_SELCHANGE),
    };
    static const KestoPlatform::AFX_MSGMAP map{KCResourceDialog::GetMessageMap(), entries};
    return &map;
}

void ExpandingFillPreviewDlg::DoDataExchange(KestoPlatform::CDataExchange* pDX)
{
    KCResourceDialog::DoDataExchange(pDX);
    KestoPlatform::DDX_Control(pDX, IDC_EDITOR_PREVIEW, m_preview);
    KestoPlatform::DDX_Control(pDX, IDC_PREVIEW_ZOOM_IN, m_zoomIn);
    KestoPlatform::DDX_Control(pDX, IDC_PREVIEW_ZOOM_OUT, m_zoomOut);
    KestoPlatform::DDX_Control(pDX, IDC_PREVIEW_ZOOM_COMBO, m_zoomCombo);
    KestoPlatform::DDX_Control(pDX, IDC_PREVIEW_EXPAND, m_expand);
}

bool ExpandingFillPreviewDlg::OnInitDialog()
{
    KCResourceDialog::OnInitDialog();
    m_preview.SetClient(this);
    m_preview.SetBounds(m_objectRect);
    m_preview.SetFill(m_fill.get());
    ShowImage(m_zoomIn, L"Zoom in.png", IDS_PREVIEW_ZOOM_IN);
    ShowImage(m_zoomOut, L"Zoom out.png", IDS_PREVIEW_ZOOM_OUT);
    m_zoomCombo.SetToolTipText(Module::Get().LoadString(IDS_PREVIEW_ZOOM_TO_FIT));
    for (const int step : KestoUI::FillControl::ZoomSteps()) {
        CString text;
        if (step == KestoUI::FillControl::FitZoom)
            text = Module::Get().LoadString(IDS_PREVIEW_ZOOM_TO_FIT);
        else
            text.Format(L"%d%%", step);
        m_zoomCombo.SetItemData(m_zoomCombo.AddString(text), step);
    }
    ShowZoom();
    m_expanded = true;
    m_expandedWidth = GetWindowRect().Width();
    ShowExpandImage();
    if (!m_helperSetting)
        m_expand.ShowWindow(KestoPlatform::SW_HIDE);
    OnEditedFillChanged();
    return true;
}

void ExpandingFillPreviewDlg::ShowZoom()
{
    int current = -1;
    for (int i = 0; i < m_zoomCombo.GetCount(); ++i) {
        if (m_zoomCombo.GetItemData(i) == m_preview.GetZoom())
            current = i;
    }
    m_zoomCombo.SetCurSel(current);
}

void ExpandingFillPreviewDlg::OnZoomIn()
{
    m_preview.ZoomIn();
    ShowZoom();
}

void ExpandingFillPreviewDlg::OnZoomOut()
{
    m_preview.ZoomOut();
    ShowZoom();
}

void ExpandingFillPreviewDlg::OnZoomSelected()
{
    const int index = m_zoomCombo.GetCurSel();
    if (index >= 0)
        m_preview.SetZoom(static_cast<int>(m_zoomCombo.GetItemData(index)));
}

void ExpandingFillPreviewDlg::ShowExpandImage()
{
    ShowImage(m_expand, m_expanded ? L"Contract.png" : L"Expand.png", IDS_PREVIEW_SHOW_HIDE);
}

void ExpandingFillPreviewDlg::OnExpand()
{
    // The pane is the preview and its zoom controls; the dialog narrows to the pane's left edge
    // and widens back to its template's width.
    m_expanded = !m_expanded;
    const int show = m_expanded ? KestoPlatform::SW_SHOW : KestoPlatform::SW_HIDE;
    for (KestoPlatform::CWnd* pane :
         {static_cast<KestoPlatform::CWnd*>(&m_preview), static_cast<KestoPlatform::CWnd*>(&m_zoomIn),
          static_cast<KestoPlatform::CWnd*>(&m_zoomOut), static_cast<KestoPlatform::CWnd*>(&m_zoomCombo)})
        pane->ShowWindow(show);
    CRect frame = GetWindowRect();
    frame.right = frame.left + (m_expanded ? m_expandedWidth : m_preview.GetWindowRect().left);
    MoveWindow(frame);
    ShowExpandImage();
}

std::optional<double> ExpandingFillPreviewDlg::NumberIn(const KestoPlatform::CEdit& edit)
{
    const CString text = edit.GetWindowText();
    wchar_t* end = nullptr;
    const double value = std::wcstod(text.GetString(), &end);
    if (end == text.GetString() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

void ExpandingFillPreviewDlg::ShowNumber(KestoPlatform::CEdit& edit, double value)
{
    CString text;
    text.Format(L"%g", value);
    edit.SetWindowText(text);
}

const KestoGDI::CFill* ExpandingFillPreviewDlg::GetCurrentFill() const
{
    return m_rule == CommitRule::ToolOnly && GetTool() ? GetTool()->GetFill() : m_fill.get();
}

void ExpandingFillPreviewDlg::OnOK()
{
    const KestoGDI::CFill* edited = GetCurrentFill();
    m_result = edited ? edited->Clone() : nullptr;
    KCResourceDialog::OnOK();
}

void ExpandingFillPreviewDlg::ClientToPaper(KestoPlatform::SIZE* size)
{
    const double scale = KestoPlatform::ScreenMetrics::GetLogPixelsX() / 96.0 * m_preview.GetUnitsPerPixel();
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
    if (!fill || !GetTool())
        return;
    m_session.Follow(fill);
    if (m_rule == CommitRule::ToolOnly) {
        m_preview.SetFill(fill);
        OnEditedFillChanged();
        return;
    }
    const auto* committed = dynamic_cast<const KestoGDI::CFillWithStops*>(fill);
    if (!committed)
        return;
    m_stops = committed->GetColourIntPairs();
    RefPtr<KestoGDI::CFill> rebuilt = fill->Clone();
    static_cast<KestoGDI::CFillWithStops&>(*rebuilt).SetColourIntPairs(m_stops);
    m_fill = rebuilt;
    m_preview.SetFill(m_fill.get());
    OnEditedFillChanged();
}

void ExpandingFillPreviewDlg::PreviewPress(CPoint point, unsigned flags)
{
    m_session.Press(point, flags, false);
}

void ExpandingFillPreviewDlg::PreviewMove(CPoint point, unsigned flags)
{
    m_session.Move(point, flags);
}

void ExpandingFillPreviewDlg::PreviewRelease(CPoint point, unsigned flags)
{
    // A geometry drag reshapes the tool's copy and commits nothing: its end is the commit.
    if (const std::optional<ToolGesture::Step> step = m_session.Release(point, flags))
        Commit(step->after.get());
}

void ExpandingFillPreviewDlg::OnControlPress(KestoUI::FillControl&, CPoint point, unsigned flags)
{
    PreviewPress(point, DragFlagsOf(flags));
}

void ExpandingFillPreviewDlg::OnControlDrag(KestoUI::FillControl&, CPoint point, unsigned flags)
{
    PreviewMove(point, DragFlagsOf(flags));
    // The tool reshapes its own copy while the drag lasts: show that.
    if (IsInDrag())
        m_preview.SetFill(GetTool()->GetFill());
}

void ExpandingFillPreviewDlg::OnControlRelease(KestoUI::FillControl&, CPoint point, unsigned flags)
{
    PreviewRelease(point, DragFlagsOf(flags));
}

void ExpandingFillPreviewDlg::DrawOverlay(const KestoUI::FillControl&, KestoGDI::IRenderTarget& target,
                                          const Kesto2D::K2DLtGeneral& view) const
{
    if (FillTool* tool = GetTool())
        tool->Draw(&target, false, view);
}

} // namespace KestoTool
