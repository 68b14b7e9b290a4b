#include "kestotool/platform/CXTPCommandBars.h"

#include "kestotool/platform/CXTPControlComboBox.h"
#include "kestotool/platform/CXTPControlPopupColor.h"

namespace KestoPlatform {

std::unique_ptr<CXTPControl> CXTPCommandBars::MakeControl(XTPControlType type, int id)
{
    switch (type) {
    case XTPControlType::ComboBox: return std::make_unique<CXTPControlComboBox>(id);
    case XTPControlType::PopupColor: return std::make_unique<CXTPControlPopupColor>(id);
    case XTPControlType::Button: return std::make_unique<CXTPControlButton>(id);
    case XTPControlType::Edit: return std::make_unique<CXTPControlEdit>(id);
    case XTPControlType::Popup: return std::make_unique<CXTPControlPopup>(id);
    case XTPControlType::SplitButtonPopup: return std::make_unique<CXTPControlSplitButtonPopup>(id);
    case XTPControlType::None: return nullptr;
    }
    return nullptr;
}

CXTPControl* CXTPCommandBars::Add(XTPControlType type, int id)
{
    return Add(MakeControl(type, id));
}

CXTPControl* CXTPCommandBars::Add(std::unique_ptr<CXTPControl> control)
{
    if (!control)
        return nullptr;
    m_controls.push_back(std::move(control));
    return m_controls.back().get();
}

CXTPControl* CXTPCommandBars::CreateControl(int id, bool toolBar, const CreateHook& create,
                                            const AfterCreateHook& after)
{
    XTP_COMMANDBARS_CREATECONTROL cc;
    cc.nID = id;
    cc.bToolBar = toolBar;
    const bool handled = create && create(&cc) != 0;
    if (!cc.pControl) {
        const XTPControlType type =
            handled && cc.controlType != XTPControlType::None ? cc.controlType : XTPControlType::Button;
        cc.pControl = MakeControl(type, id);
        cc.pControl->SetStyle(cc.buttonStyle);
    }
    if (after)
        after(&cc);
    return Add(std::move(cc.pControl));
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

} // namespace KestoPlatform
