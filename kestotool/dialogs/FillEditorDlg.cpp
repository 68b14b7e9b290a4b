#include "kestotool/dialogs/FillEditorDlg.h"

#include "kestotool/resources/ResourceIds.h"

namespace KestoTool {

CFillEditorDlg::CFillEditorDlg(int templateId, IDocumentEx* document, const KestoGDI::CFill* fill,
                               const CRect& objectRect, Platform::CWnd* parent)
    : KCResourceDialog(templateId, parent), m_document(document), m_fill(fill ? fill->Clone() : nullptr),
      m_objectRect(objectRect)
{
}

void CFillEditorDlg::DoDataExchange(Platform::CDataExchange* pDX)
{
    KCResourceDialog::DoDataExchange(pDX);
    Platform::DDX_Control(pDX, IDC_EDITOR_PREVIEW, m_preview);
}

bool CFillEditorDlg::OnInitDialog()
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

void CFillEditorDlg::OnOK()
{
    m_result = m_fill ? m_fill->Clone() : nullptr;
    KCResourceDialog::OnOK();
}

} // namespace KestoTool
