#include "kestotool/platform/CRuntimeClass.h"

namespace KestoPlatform {

bool CRuntimeClass::IsDerivedFrom(const CRuntimeClass* base) const
{
    for (const CRuntimeClass* c = this; c; c = c->m_pBaseClass) {
        if (c == base)
            return true;
    }
    return false;
}

} // namespace KestoPlatform
