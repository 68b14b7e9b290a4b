#include "kestotool/platform/CObject.h"

namespace KestoPlatform {

const CRuntimeClass* CObject::GetThisClass()
{
    static const CRuntimeClass record{"CObject", sizeof(CObject), nullptr, nullptr};
    return &record;
}

const CRuntimeClass* CObject::GetRuntimeClass() const
{
    return GetThisClass();
}

} // namespace KestoPlatform
