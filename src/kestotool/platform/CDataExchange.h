#pragma once

#include "kestotool/platform/CString.h"
#include "kestotool/platform/Export.h"

namespace KestoPlatform {

class CWnd;

// One exchange between a dialog's members and its controls: loading the controls from the
// members, or saving (and validating) the controls into the members.
class CDataExchange {
public:
    CDataExchange(CWnd* dialog, bool saveAndValidate) : m_pDlgWnd(dialog), m_bSaveAndValidate(saveAndValidate) {}

    CWnd* const m_pDlgWnd;
    const bool m_bSaveAndValidate;

    // A control held a value that does not validate; the members keep what they had.
    void Fail() { m_failed = true; }
    bool Failed() const { return m_failed; }

private:
    bool m_failed = false;
};

// Makes control the live window of the dialog item with that id (once).
KESTO_API void DDX_Control(CDataExchange* pDX, int id, CWnd& control);
// An integer in an item's text; on saving, text that is not a whole number fails the exchange.
KESTO_API void DDX_Text(CDataExchange* pDX, int id, int& value);
KESTO_API void DDX_Text(CDataExchange* pDX, int id, CString& value);

} // namespace KestoPlatform
