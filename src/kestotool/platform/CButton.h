#pragma once

#include "kestotool/platform/CWnd.h"
#include "kestotool/platform/CXTPImageManager.h"
#include "kestotool/platform/Export.h"

namespace KestoPlatform {

// A push button: a click tells the parent BN_CLICKED under the button's id. It shows its text,
// and its image before the text when it has one.
class KESTO_API CButton : public CWnd {
    KESTO_DECLARE_DYNAMIC(CButton)
public:
    void SetImage(XTPImage image);
    const XTPImage& GetImage() const { return m_image; }
    // The user's click, from either back end: the button takes the focus (so an edit box being
    // typed in loses it), a check box turns over, and the parent is told.
    void Click();

protected:
    WindowKind GetWindowKind() const override { return WindowKind::Button; }
    // What a click does to the button itself before the parent hears of it.
    virtual void OnClicked() {}

private:
    XTPImage m_image;
};

// A box that the user ticks or clears; a click turns it over and tells the parent BN_CLICKED.
class KESTO_API CCheckBox : public CButton {
    KESTO_DECLARE_DYNAMIC(CCheckBox)
public:
    bool GetCheck() const { return m_checked; }
    void SetCheck(bool checked);

protected:
    WindowKind GetWindowKind() const override { return WindowKind::CheckBox; }
    void OnClicked() override { SetCheck(!m_checked); }

private:
    bool m_checked = false;
};

} // namespace KestoPlatform
