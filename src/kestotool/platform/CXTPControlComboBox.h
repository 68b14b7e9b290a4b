#pragma once

#include "kestotool/platform/CListItems.h"
#include "kestotool/platform/CXTPControl.h"
#include "kestotool/platform/Export.h"

namespace KestoPlatform {

// A drop-down list on a command bar.
class KESTO_API CXTPControlComboBox : public CXTPControl, public CListItems {
public:
    explicit CXTPControlComboBox(int id = 0) : CXTPControl(XTPControlType::ComboBox, id) {}

    int GetDropDownItemCount() const { return m_dropDownCount; }
    void SetDropDownItemCount(int count) { m_dropDownCount = count; }

private:
    int m_dropDownCount = 0;
};

} // namespace KestoPlatform
