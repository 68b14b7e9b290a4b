#pragma once

#include "platform/CString.h"

#include <cstdint>

namespace Platform {

enum class XTPControlType {
    Button,
    ComboBox,
    PopupColor,
    Edit,
};

// One item of a command bar as a plain object: the host maps it onto a real toolbar control.
class CXTPControl {
public:
    CXTPControl(XTPControlType type, int id) : m_type(type), m_id(id) {}
    virtual ~CXTPControl() = default;

    XTPControlType GetType() const { return m_type; }
    int GetID() const { return m_id; }
    void SetID(int id) { m_id = id; }
    int GetStyle() const { return m_style; }
    void SetStyle(int style) { m_style = style; }
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
    int m_style = 0;
    CString m_caption;
    CString m_prompt;
    std::uint32_t m_flags = 0;
    bool m_visible = true;
    bool m_enabled = true;
    bool m_checked = false;
};

class CXTPControlButton : public CXTPControl {
public:
    explicit CXTPControlButton(int id = 0) : CXTPControl(XTPControlType::Button, id) {}
};

} // namespace Platform
