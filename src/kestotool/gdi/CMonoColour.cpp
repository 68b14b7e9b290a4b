#include "kestotool/gdi/CMonoColour.h"

#include <algorithm>

namespace KestoGDI {

CMonoColour::CMonoColour(int level, short tint) : CColour(tint, 255)
{
    SetLevel(level);
}

void CMonoColour::SetLevel(int level)
{
    m_level = std::clamp(level, 0, 255);
}

bool CMonoColour::IsEqual(const CColour& other) const
{
    const auto* o = dynamic_cast<const CMonoColour*>(&other);
    return o && typeid(*o) == typeid(*this) && SameTintAndAlpha(*o) && m_level == o->m_level;
}

} // namespace KestoGDI
