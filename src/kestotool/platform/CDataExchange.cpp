#include "kestotool/platform/CDataExchange.h"

#include "kestotool/platform/CWnd.h"

#include <cerrno>
#include <cwchar>
#include <limits>

namespace KestoPlatform {

void DDX_Control(CDataExchange* pDX, int id, CWnd& control)
{
    if (!control.IsWindow())
        control.SubclassDlgItem(id, pDX->m_pDlgWnd);
}

void DDX_Text(CDataExchange* pDX, int id, int& value)
{
    CWnd* item = pDX->m_pDlgWnd->GetDlgItem(id);
    if (!item) {
        pDX->Fail();
        return;
    }
    if (!pDX->m_bSaveAndValidate) {
        CString text;
        text.Format(L"%d", value);
        item->SetWindowText(text);
        return;
    }
    CString text = item->GetWindowText();
    text.Trim();
    const wchar_t* begin = text.GetString();
    wchar_t* end = nullptr;
    errno = 0;
    const long n = std::wcstol(begin, &end, 10);
    if (end == begin || *end != L'\0' || errno == ERANGE || n < std::numeric_limits<int>::min() ||
        n > std::numeric_limits<int>::max()) {
        pDX->Fail();
        return;
    }
    value = static_cast<int>(n);
}

void DDX_Text(CDataExchange* pDX, int id, CString& value)
{
    CWnd* item = pDX->m_pDlgWnd->GetDlgItem(id);
    if (!item) {
        pDX->Fail();
        return;
    }
    if (pDX->m_bSaveAndValidate)
        value = item->GetWindowText();
    else
        item->SetWindowText(value);
}

} // namespace KestoPlatform
