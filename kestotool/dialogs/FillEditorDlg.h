#pragma once

#include "kestotool/gdi/CFill.h"
#include "kestotool/platform/Export.h"
#include "kestotool/tool/KestoToolImports.h"
#include "kestotool/ui/FillPreview.h"
#include "kestotool/ui/KCResourceDialog.h"

namespace KestoTool {

class IDocumentEx;

// The base of the fill and transparency editors: a dialog from its own template that edits a
// copy of a fill, shows it in a preview with a pane of three buttons, and after OK hands the
// result over. The editors' own controls (gradient bar, stop list, in-dialog tool) come later;
// for now OK returns the fill as the preview shows it.
class KESTO_API CFillEditorDlg : public KestoUI::KCResourceDialog {
public:
    // The host's yes/no setting (its meaning is the host's). At start-up a dialog whose setting
    // is no hides the third button of its preview pane. Yes unless set.
    void SetHelperSetting(bool setting) { m_helperSetting = setting; }
    bool GetHelperSetting() const { return m_helperSetting; }

    // After OK: the edited fill, handed over once; empty before OK and after the first call.
    RefPtr<KestoGDI::CFill> TakeFill() { return std::move(m_result); }
    // The fill being edited (the dialog's own copy).
    const KestoGDI::CFill* GetFill() const { return m_fill.get(); }
    const KestoUI::FillPreview& GetPreview() const { return m_preview; }
    IDocumentEx* GetDocument() const { return m_document; }
    const CRect& GetObjectRect() const { return m_objectRect; }

protected:
    CFillEditorDlg(int templateId, IDocumentEx* document, const KestoGDI::CFill* fill, const CRect& objectRect,
                   Platform::CWnd* parent);

    bool OnInitDialog() override;
    void DoDataExchange(Platform::CDataExchange* pDX) override;
    void OnOK() override;

private:
    IDocumentEx* m_document;
    RefPtr<KestoGDI::CFill> m_fill;
    RefPtr<KestoGDI::CFill> m_result;
    CRect m_objectRect;
    bool m_helperSetting = true;
    KestoUI::FillPreview m_preview;
};

} // namespace KestoTool
