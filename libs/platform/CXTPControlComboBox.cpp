#include "platform/CXTPControlComboBox.h"

namespace Platform {

int CXTPControlComboBox::AddString(const CString& text)
{
    m_items.push_back({text, 0});
    return GetCount() - 1;
}

void CXTPControlComboBox::ResetContent()
{
    m_items.clear();
    m_current = -1;
}

CString CXTPControlComboBox::GetLBText(int index) const
{
    return Valid(index) ? m_items[static_cast<std::size_t>(index)].text : CString();
}

std::intptr_t CXTPControlComboBox::GetItemData(int index) const
{
    return Valid(index) ? m_items[static_cast<std::size_t>(index)].data : 0;
}

void CXTPControlComboBox::SetItemData(int index, std::intptr_t data)
{
    if (Valid(index))
        m_items[static_cast<std::size_t>(index)].data = data;
}

void CXTPControlComboBox::SetCurSel(int index)
{
    m_current = Valid(index) ? index : -1;
}

} // namespace Platform
