#pragma once

#include "kestotool/platform/CRect.h"
#include "kestotool/platform/CString.h"
#include "kestotool/platform/Export.h"

#include <cstdint>

namespace KestoPlatform {

// Control types with the toolkit's numbers; 0 means none was described.
enum class XTPControlType {
    None = 0,
    Button = 1,
    Popup = 2,
    SplitButtonPopup = 3,
    ComboBox = 4,
    Edit = 5,
    PopupColor = 6,
};

// How a button shows itself.
enum class XTPButtonStyle {
    Automatic = 0,
    Caption = 1,
    Icon = 2,
    IconAndCaption = 3,
};

// One item of a command bar as a plain object: the host maps it onto a real toolbar control.
class KESTO_API CXTPControl {
public:
    CXTPControl(XTPControlType type, int id) : m_type(type), m_id(id) {}
    virtual ~CXTPControl() = default;

    XTPControlType GetType() const { return m_type; }
    int GetID() const { return m_id; }
    void SetID(int id) { m_id = id; }
    void SetType(XTPControlType type) { m_type = type; }
    XTPButtonStyle GetStyle() const { return m_style; }
    void SetStyle(XTPButtonStyle style) { m_style = style; }
    const CRect& GetRect() const { return m_rect; }
    void SetRect(const CRect& rect) { m_rect = rect; }
    const CString& GetCaption() const { return m_caption; }
    void SetCaption(const CString& caption) { m_caption = caption; }
    // Description, tooltip title and short caption separated by line feeds.
    const CString& GetPrompt() const { return m_prompt; }
    void SetPrompt(const CString& prompt) { m_prompt = prompt; }
    std::uint32_t GetFlags() const { return m_flags; }
    void SetFlags(std::uint32_t flags) { m_flags = flags; }
    bool IsVisible() const { return m_visible; }
    void SetVisible(bool visible) { m_visible = visible; }
    bool GetEnabled() const { return m_enabled; }
    void SetEnabled(bool enabled) { m_enabled = enabled; }
    bool GetChecked() const { return m_checked; }
    void SetChecked(bool checked) { m_checked = checked; }

private:
    XTPControlType m_type;
    int m_id;
    XTPButtonStyle m_style = XTPButtonStyle::Automatic;
    CRect m_rect;
    CString m_caption;
    CString m_prompt;
    std::uint32_t m_flags = 0;
    bool m_visible = true;
    bool m_enabled = true;
    bool m_checked = false;
};

class KESTO_API CXTPControlButton : public CXTPControl {
public:
    explicit CXTPControlButton(int id = 0) : CXTPControl(XTPControlType::Button, id) {}
};

// A button that opens a drop-down.
class KESTO_API CXTPControlPopup : public CXTPControl {
public:
    explicit CXTPControlPopup(int id = 0, XTPControlType type = XTPControlType::Popup) : CXTPControl(type, id) {}
};

// A button with a drop-down beside it.
class KESTO_API CXTPControlSplitButtonPopup : public CXTPControlPopup {
public:
    explicit CXTPControlSplitButtonPopup(int id = 0) : CXTPControlPopup(id, XTPControlType::SplitButtonPopup) {}
};

// An edit box that shows a number with a unit (a percentage).
class KESTO_API CXTPControlEdit : public CXTPControl {
public:
    explicit CXTPControlEdit(int id = 0) : CXTPControl(XTPControlType::Edit, id) {}
    double GetValue() const { return m_value; }
    void SetValue(double value) { m_value = value; }
    const CString& GetUnit() const { return m_unit; }
    void SetUnit(const CString& unit) { m_unit = unit; }
    bool HasFocus() const { return m_focus; }
    void SetFocused(bool focus) { m_focus = focus; }

private:
    double m_value = 0;
    CString m_unit;
    bool m_focus = false;
};

} // namespace KestoPlatform
