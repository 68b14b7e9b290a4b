#pragma once

#include "kestotool/platform/CRuntimeClass.h"
#include "kestotool/platform/Export.h"

namespace KestoPlatform {

// Root of the classes that carry a run-time class record.
class KESTO_API CObject {
public:
    virtual ~CObject() = default;

    static const CRuntimeClass* GetThisClass();
    virtual const CRuntimeClass* GetRuntimeClass() const;
    bool IsKindOf(const CRuntimeClass* c) const { return GetRuntimeClass()->IsDerivedFrom(c); }

protected:
    CObject() = default;
    CObject(const CObject&) = default;
    CObject& operator=(const CObject&) = default;
};

} // namespace KestoPlatform
