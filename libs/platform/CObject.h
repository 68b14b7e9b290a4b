#pragma once

#include "platform/CRuntimeClass.h"

namespace Platform {

// Root of the classes that carry a run-time class record.
class CObject {
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

} // namespace Platform
