#pragma once

#include "kestotool/platform/CString.h"
#include "kestotool/platform/Export.h"

#include <cstdint>
#include <vector>

namespace KestoPlatform {

// The items of a drop-down list: a text and a data value each, and one current selection
// (-1 for none). Shared by the window combo box and the command-bar combo.
class KESTO_API CListItems {
public:
    virtual ~CListItems() = default;
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

protected:
    // The items or the selection changed (a window shows them again).
    virtual void OnItemsChanged() {}

private:
    struct Item {
        CString text;
        std::intptr_t data = 0;
    };
    bool Valid(int index) const { return index >= 0 && index < GetCount(); }

    std::vector<Item> m_items;
    int m_current = -1;
};

} // namespace KestoPlatform
