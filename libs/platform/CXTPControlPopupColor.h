#pragma once

#include "platform/CXTPControl.h"
#include "platform/ColourRef.h"

namespace Platform {

// A button that shows and picks a colour.
class CXTPControlPopupColor : public CXTPControlPopup {
public:
    explicit CXTPControlPopupColor(int id = 0) : CXTPControlPopup(id, XTPControlType::PopupColor) {}

    COLORREF GetColor() const { return m_colour; }
    void SetColor(COLORREF colour) { m_colour = colour; }

private:
    COLORREF m_colour = 0;
};

} // namespace Platform
