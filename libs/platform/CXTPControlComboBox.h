#pragma once

#include "platform/CXTPControl.h"

#include <vector>

namespace Platform {

// A drop-down list: items with a text and a data value, one current selection (-1 for none).
class CXTPControlComboBox : public CXTPControl {
public:
    explicit CXTPControlComboBox(int id = 0) : CXTPControl(XTPControlType::ComboBox, id) {}

    int GetCount() const { return static_cast<int>(m_items.size()); }
    // Appends an item and answers its index.
    int AddString(const CString& text);
    void ResetContent();
    // Text of an item; empty for an index out of range.
    CString GetLBText(int index) const;
    // Data of an item; 0 for an index out of range, where setting changes nothing.
    std::intptr_t GetItemData(int index) const;
    void SetItemData(int index, std::intptr_t data);
    int GetCurSel() const { return m_current; }
    // Selects an item; any index out of range selects none (-1).
    void SetCurSel(int index);
    int GetDropDownItemCount() const { return m_dropDownCount; }
    void SetDropDownItemCount(int count) { m_dropDownCount = count; }

private:
    struct Item {
        CString text;
        std::intptr_t data = 0;
    };
    bool Valid(int index) const { return index >= 0 && index < GetCount(); }

    std::vector<Item> m_items;
    int m_current = -1;
    int m_dropDownCount = 0;
};

} // namespace Platform
