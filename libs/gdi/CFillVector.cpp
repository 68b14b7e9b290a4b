#include "gdi/CFillVector.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CFillVector, CFillBitmap)

void CFillVector::UpdateBBox(const CRect& objectBox, const K2DLtGeneral& transform)
{
    m_objectBox = objectBox.Normalized();
    m_transform = transform;
}

bool CFillVector::IsEqualData(const CFill& other) const
{
    const auto& o = static_cast<const CFillVector&>(other);
    return CFillBitmap::IsEqualData(other) && m_transform == o.m_transform && m_objectBox == o.m_objectBox;
}

} // namespace KestoGDI
