#include "platform/CXTPCommandBars.h"

#include "platform/CXTPControlComboBox.h"
#include "platform/CXTPControlPopupColor.h"

namespace Platform {

CXTPControl* CXTPCommandBars::Add(XTPControlType type, int id)
{
    switch (type) {
    case XTPControlType::ComboBox: return Add(std::make_unique<CXTPControlComboBox>(id));
    case XTPControlType::PopupColor: return Add(std::make_unique<CXTPControlPopupColor>(id));
    case XTPControlType::Button: return Add(std::make_unique<CXTPControlButton>(id));
    case XTPControlType::Edit: return Add(std::make_unique<CXTPControl>(XTPControlType::Edit, id));
    }
    return nullptr;
}

CXTPControl* CXTPCommandBars::Add(std::unique_ptr<CXTPControl> control)
{
    if (!control)
        return nullptr;
    m_controls.push_back(std::move(control));
    return m_controls.back().get();
}

CXTPControl* CXTPCommandBars::GetAt(int index) const
{
    return index >= 0 && index < GetCount() ? m_controls[static_cast<std::size_t>(index)].get() : nullptr;
}

CXTPControl* CXTPCommandBars::FindControl(int id) const
{
    for (const auto& c : m_controls) {
        if (c->GetID() == id)
            return c.get();
    }
    return nullptr;
}

} // namespace Platform
