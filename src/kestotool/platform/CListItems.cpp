#include "kestotool/platform/CListItems.h"

namespace KestoPlatform {

int CListItems::AddString(const CString& text)
{
    m_items.push_back({text, 0});
    OnItemsChanged();
    return GetCount() - 1;
}

void CListItems::ResetContent()
{
    m_items.clear();
    m_current = -1;
    OnItemsChanged();
}

CString CListItems::GetLBText(int index) const
{
    return Valid(index) ? m_items[static_cast<std::size_t>(index)].text : CString();
}

std::intptr_t CListItems::GetItemData(int index) const
{
    return Valid(index) ? m_items[static_cast<std::size_t>(index)].data : 0;
}

void CListItems::SetItemData(int index, std::intptr_t data)
{
    if (Valid(index))
        m_items[static_cast<std::size_t>(index)].data = data;
}

void CListItems::SetCurSel(int index)
{
    m_current = Valid(index) ? index : -1;
    OnItemsChanged();
}

} // namespace KestoPlatform
