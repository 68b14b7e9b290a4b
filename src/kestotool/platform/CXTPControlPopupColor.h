#pragma once

#include "kestotool/platform/CXTPControl.h"
#include "kestotool/platform/ColourRef.h"
#include "kestotool/platform/Export.h"

namespace KestoPlatform {

// A button that shows and picks a colour.
class KESTO_API CXTPControlPopupColor : public CXTPControlPopup {
public:
    explicit CXTPControlPopupColor(int id = 0) : CXTPControlPopup(id, XTPControlType::PopupColor) {}

    COLORREF GetColor() const { return m_colour; }
    void SetColor(COLORREF colour) { m_colour = colour; }

private:
    COLORREF m_colour = 0;
};

} // namespace KestoPlatform
