#include "kestotool/gdi/CRGBColour.h"

namespace KestoGDI {

CRGBColour::CRGBColour(unsigned long rgb, const wchar_t* name, short tint, short alpha)
    : CColour(tint, alpha), m_rgb(static_cast<COLORREF>(rgb & 0xFFFFFF)), m_name(name ? name : L"")
{
}

bool CRGBColour::IsEqual(const CColour& other) const
{
    const auto* o = dynamic_cast<const CRGBColour*>(&other);
    return o && typeid(*o) == typeid(*this) && SameTintAndAlpha(*o) && m_rgb == o->m_rgb && m_name == o->m_name;
}

} // namespace KestoGDI
