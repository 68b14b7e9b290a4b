#include "kestotool/gdi/CFillSolid.h"

#include "kestotool/gdi/CRGBColour.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CFillSolid, CFill)

CFillSolid::CFillSolid() : m_colour(std::make_unique<CRGBColour>(0)) {}

CFillSolid::CFillSolid(const CColour& colour, bool alphaFromColour) : m_colour(colour.Clone())
{
    if (alphaFromColour)
        SetAlpha(colour.GetAlpha());
}

CFillSolid::CFillSolid(const CFillSolid& other) : CFill(other), m_colour(other.m_colour->Clone()) {}

CFillSolid& CFillSolid::operator=(const CFillSolid& other)
{
    if (this != &other) {
        CFill::operator=(other);
        m_colour = other.m_colour->Clone();
    }
    return *this;
}

CFillSolid::~CFillSolid() = default;

bool CFillSolid::IsEqualData(const CFill& other) const
{
    return CFill::IsEqualData(other) && m_colour->IsEqual(*static_cast<const CFillSolid&>(other).m_colour);
}

} // namespace KestoGDI
