#include "kestotool/gdi/CTransparency.h"

#include "kestotool/gdi/FillKinds.h"

namespace KestoGDI {

const CRuntimeClass* CTransparency::GetRuntimeClassFromType(int type)
{
    const FillKind* kind = FillKinds::Find(type);
    return kind ? kind->transparencyClass : nullptr;
}

} // namespace KestoGDI
