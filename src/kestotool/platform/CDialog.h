#pragma once

#include "kestotool/platform/CDataExchange.h"
#include "kestotool/platform/CWnd.h"
#include "kestotool/platform/DialogTemplate.h"
#include "kestotool/platform/Export.h"

namespace KestoPlatform {

// A dialog built from a template: DoModal makes its controls, runs OnInitDialog and hands the
// dialog to the back end's modal run, which ends with EndDialog (OK and Cancel buttons end it
// through OnOK and OnCancel). The controls are gone when DoModal returns; the dialog object and
// what it kept remain.
class KESTO_API CDialog : public CWnd {
    KESTO_DECLARE_DYNAMIC(CDialog)
public:
    CDialog(const DialogTemplate* dialogTemplate, CWnd* parent);

    // IDOK, IDCANCEL or another EndDialog code; -1 without a template.
    virtual int DoModal();
    void EndDialog(int result);
    bool IsEnded() const { return m_ended; }

    // Loads the controls from the members (false) or saves them into the members (true);
    // answers false when a control did not validate.
    bool UpdateData(bool saveAndValidate = true);

    bool OnCommand(unsigned param, CWnd* control) override;

protected:
    // Base: loads the controls from the members; answers true to take the default focus.
    virtual bool OnInitDialog();
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual void OnCancel();

    CWnd* GetParentWindow() const { return m_parentWindow; }
    WindowKind GetWindowKind() const override { return WindowKind::Dialog; }

private:
    void CreateControls();

    const DialogTemplate* m_template;
    CWnd* m_parentWindow;
    bool m_ended = false;
    int m_result = IDCANCEL;
};

} // namespace KestoPlatform
