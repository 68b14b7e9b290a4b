#pragma once

#include "kestotool/filltool/FillTool.h"
#include "kestotool/filltool/FillToolFactory.h"
#include "kestotool/filltool/ToolSession.h"
#include "kestotool/gdi/CFill.h"
#include "kestotool/gdi/ColourIntPairs.h"
#include "kestotool/platform/CButton.h"
#include "kestotool/platform/CComboBox.h"
#include "kestotool/platform/CEdit.h"
#include "kestotool/platform/Export.h"
#include "kestotool/tool/IToolSite.h"
#include "kestotool/tool/KestoToolImports.h"
#include "kestotool/ui/FillControl.h"
#include "kestotool/ui/KCResourceDialog.h"

#include <memory>
#include <optional>

namespace KestoTool {

class IDocumentEx;

// The base of the editors that preview the fill they edit: a dialog from its own template with
// a preview pane (the preview, zoom in and out, a zoom box) that a button shows and hides. It
// is also the site of the same on-canvas tool the document uses, run inside the preview on the
// dialog's copy of the fill, so that the user drags handles there as on the page and every
// commit comes back to the dialog. After OK the edited fill is handed over; after Cancel
// nothing is.
class KESTO_API ExpandingFillPreviewDlg : public KestoUI::KCResourceDialog,
                                          public IToolSite,
                                          private KestoUI::FillControlClient {
public:
    ~ExpandingFillPreviewDlg() override;

    // The host's yes/no setting (its meaning is the host's). At start-up a dialog whose setting
    // is no hides the third button of its preview pane. Yes unless set.
    void SetHelperSetting(bool setting) { m_helperSetting = setting; }
    bool GetHelperSetting() const { return m_helperSetting; }

    // After OK: the edited fill, handed over once; empty before OK and after the first call.
    RefPtr<KestoGDI::CFill> TakeFill() { return std::move(m_result); }
    // The fill the dialog holds: as opened, or as rebuilt from the stop list by the gradient and
    // plasma editors.
    const KestoGDI::CFill* GetFill() const { return m_fill.get(); }
    // What OK would hand over now: the dialog's fill, or the tool's for the editors whose
    // commits only go to the tool.
    const KestoGDI::CFill* GetCurrentFill() const;
    // Makes fill the edited fill and builds its tool; a kind without a tool keeps the tool
    // there was (or none).
    void SetEditedFill(const KestoGDI::CFill* fill);
    // The tool running in the preview; null until a fill of a kind with a tool is set.
    FillTool* GetTool() const { return m_session.Tool(); }
    KestoUI::FillControl& GetPreview() { return m_preview; }
    const KestoUI::FillControl& GetPreview() const { return m_preview; }
    KestoPlatform::CComboBox& GetZoomCombo() { return m_zoomCombo; }
    const CRect& GetObjectRect() const { return m_objectRect; }
    // Whether the preview pane shows.
    bool IsExpanded() const { return m_expanded; }

    // The preview's mouse gesture, in document units, as the drag protocol (flags the tool's
    // DragFlag keys): the drag flag is set from the press to the end of the release.
    void PreviewPress(CPoint point, unsigned flags);
    void PreviewMove(CPoint point, unsigned flags);
    void PreviewRelease(CPoint point, unsigned flags);

    // The site of the preview's tool.
    unsigned long GetToolColour() override { return 0xC00000; }
    Kesto2D::K2DLtGeneral GetObjectToSpreadTransform() override { return {}; }
    Kesto2D::K2DLtGeneral GetAppObjectToSpreadTransform() override { return {}; }
    void ClientToPaper(KestoPlatform::SIZE* size) override;
    CRect GetObjectBBox() override { return m_objectRect; }
    CRect GetTransformedObjectBBox() override { return m_objectRect; }
    bool IsCreate() override { return false; }
    bool IsInDrag() override { return m_session.Gesture().InDrag(); }
    void ConstrainAngle(CPoint, CPoint&, bool) override {}
    void ConstrainAnglePolar(CPoint, CPoint&) override {}
    void Snap(const CPoint&, CPoint&) override {}
    CString GetCurrentSelectionDescription() override { return {}; }
    void AddContextItem(int) override {}
    IDocumentEx* GetDocument() override { return m_document; }
    void UpdateFill(const KestoGDI::CFill* fill, const wchar_t* undoName) override;
    void UpdateTransparency(const KestoGDI::CFill* fill, const wchar_t* undoName, bool flag) override;
    void SetFillType(const KestoPlatform::CRuntimeClass*) override {}
    void SetTransparencyType(const KestoPlatform::CRuntimeClass*) override {}
    void NotifyHandlesReset() override {}
    double GetAngleSnapTolerance() override { return 5.0; }

protected:
    // The number a box holds; nothing for text that is no number.
    static std::optional<double> NumberIn(const KestoPlatform::CEdit& edit);
    // Shows a number in a box without needless digits ("37.5", "12").
    static void ShowNumber(KestoPlatform::CEdit& edit, double value);

    // Pixels: the side of the colour swatch a colour button shows.
    static constexpr int SwatchSide = 14;

    // What a commit of the preview's tool does besides giving the fill back to the tool.
    enum class CommitRule {
        // The stop list becomes the dialog's editing state, and the dialog's fill is rebuilt
        // from it and shown (gradient and plasma editors).
        TakeStops,
        // Nothing more: the tool's fill is the edited one (three/four-colour and vector editors).
        ToolOnly,
    };

    ExpandingFillPreviewDlg(int templateId, IDocumentEx* document, const KestoGDI::CFill* fill, const CRect& objectRect,
                            KestoPlatform::CWnd* parent, CommitRule rule);

    bool OnInitDialog() override;
    void DoDataExchange(KestoPlatform::CDataExchange* pDX) override;
    void OnOK() override;
    const KestoPlatform::AFX_MSGMAP* GetMessageMap() const override;

    // The stop list being edited (TakeStops editors).
    const KestoGDI::ColourIntPairs& GetEditedStops() const { return m_stops; }
    // The edited fill changed (a commit, or a new fill set): editors show it in their controls.
    virtual void OnEditedFillChanged() {}

private:
    void Commit(const KestoGDI::CFill* fill);
    void ShowZoom();
    void OnZoomIn();
    void OnZoomOut();
    void OnZoomSelected();
    void OnExpand();
    void ShowExpandImage();

    void OnControlPress(KestoUI::FillControl& control, CPoint point, unsigned flags) override;
    void OnControlDrag(KestoUI::FillControl& control, CPoint point, unsigned flags) override;
    void OnControlRelease(KestoUI::FillControl& control, CPoint point, unsigned flags) override;
    void DrawOverlay(const KestoUI::FillControl& control, KestoGDI::IRenderTarget& target,
                     const Kesto2D::K2DLtGeneral& view) const override;

    IDocumentEx* m_document;
    CommitRule m_rule;
    RefPtr<KestoGDI::CFill> m_fill;
    RefPtr<KestoGDI::CFill> m_result;
    KestoGDI::ColourIntPairs m_stops;
    CRect m_objectRect;
    bool m_helperSetting = true;
    bool m_expanded = true;
    int m_expandedWidth = 0;
    KestoUI::FillControl m_preview;
    KestoPlatform::CComboBox m_zoomCombo;
    KestoPlatform::CButton m_zoomIn;
    KestoPlatform::CButton m_zoomOut;
    KestoPlatform::CButton m_expand;
    // The preview's tool, held as the editors hold tools, with no toolbar.
    ToolSession m_session{*this, &FillToolFactory::CreateWrapped, ToolSession::Toolbar::None};
};

} // namespace KestoTool
