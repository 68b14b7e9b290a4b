#include "kestotool/platform/CDialog.h"

#include "kestotool/platform/CButton.h"
#include "kestotool/platform/CComboBox.h"
#include "kestotool/platform/CEdit.h"
#include "kestotool/platform/CSliderCtrl.h"
#include "kestotool/platform/CSpinButtonCtrl.h"
#include "kestotool/platform/CStatic.h"
#include "kestotool/platform/WindowBackend.h"

namespace KestoPlatform {

KESTO_IMPLEMENT_DYNAMIC(CDialog, CWnd)

namespace {

std::unique_ptr<CWnd> MakeControl(const std::string& className)
{
    if (className == "Edit")
        return std::make_unique<CEdit>();
    if (className == "Slider")
        return std::make_unique<CSliderCtrl>();
    if (className == "Spin")
        return std::make_unique<CSpinButtonCtrl>();
    if (className == "ComboBox")
        return std::make_unique<CComboBox>();
    if (className == "Button")
        return std::make_unique<CButton>();
    if (className == "CheckBox")
        return std::make_unique<CCheckBox>();
    if (className == "Static")
        return std::make_unique<CStatic>();
    return std::make_unique<CWnd>();
}

} // namespace

CDialog::CDialog(const DialogTemplate* dialogTemplate, CWnd* parent)
    : m_template(dialogTemplate), m_parentWindow(parent)
{
}

void CDialog::CreateControls()
{
    Create(m_parentWindow, m_template->id, m_template->rect, CString(m_template->caption));
    for (const DialogItemTemplate& item : m_template->items) {
        std::unique_ptr<CWnd> control = MakeControl(item.className);
        control->Create(this, item.id, item.rect, CString(item.text));
        m_owned.push_back(std::move(control));
    }
}

int CDialog::DoModal()
{
    if (!m_template)
        return -1;
    m_ended = false;
    m_result = IDCANCEL;
    CreateControls();
    OnInitDialog();
    const int result = Backend().RunModal(*this);
    DestroyWindow();
    return m_ended ? m_result : result;
}

void CDialog::EndDialog(int result)
{
    m_ended = true;
    m_result = result;
    Backend().EndModal(*this, result);
}

bool CDialog::UpdateData(bool saveAndValidate)
{
    CDataExchange dx(this, saveAndValidate);
    DoDataExchange(&dx);
    return !dx.Failed();
}

bool CDialog::OnInitDialog()
{
    UpdateData(false);
    return true;
}

void CDialog::DoDataExchange(CDataExchange*) {}

void CDialog::OnOK()
{
    if (UpdateData(true))
        EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

bool CDialog::OnCommand(unsigned param, CWnd* control)
{
    if (CWnd::OnCommand(param, control))
        return true;
    if (CommandCode(param) != BN_CLICKED)
        return false;
    if (CommandId(param) == IDOK) {
        OnOK();
        return true;
    }
    if (CommandId(param) == IDCANCEL) {
        OnCancel();
        return true;
    }
    return false;
}

} // namespace KestoPlatform
