#pragma once

#include "kestotool/platform/Export.h"

#include <cstddef>

namespace KestoPlatform {

class CObject;

// The run-time record of a class: its name, its base and, for a class that can be created
// dynamically, a factory. Kind tests in code use dynamic_cast; this record is for creating an
// object from a class chosen at run time (a type combo, a type number).
struct KESTO_API CRuntimeClass {
    const char* m_lpszClassName;
    std::size_t m_nObjectSize;
    const CRuntimeClass* m_pBaseClass;
    CObject* (*m_pfnCreateObject)();

    // A new object owned by the caller, or null for a class that cannot be created.
    CObject* CreateObject() const { return m_pfnCreateObject ? m_pfnCreateObject() : nullptr; }
    bool IsDerivedFrom(const CRuntimeClass* base) const;
};

} // namespace KestoPlatform

// Declares the run-time record of a class; the _DYNCREATE form also makes it creatable.
#define KESTO_DECLARE_DYNAMIC(Class)                                                                                   \
public:                                                                                                                \
    static const ::KestoPlatform::CRuntimeClass* GetThisClass();                                                       \
    const ::KestoPlatform::CRuntimeClass* GetRuntimeClass() const override;

#define KESTO_DECLARE_DYNCREATE(Class)                                                                                 \
    KESTO_DECLARE_DYNAMIC(Class)                                                                                       \
    static ::KestoPlatform::CObject* CreateObject();

#define KESTO_IMPLEMENT_RUNTIMECLASS_(Class, Base, factory)                                                            \
    const ::KestoPlatform::CRuntimeClass* Class::GetThisClass()                                                        \
    {                                                                                                                  \
        static const ::KestoPlatform::CRuntimeClass record{#Class, sizeof(Class), Base::GetThisClass(), factory};      \
        return &record;                                                                                                \
    }                                                                                                                  \
    const ::KestoPlatform::CRuntimeClass* Class::GetRuntimeClass() const                                               \
    {                                                                                                                  \
        return GetThisClass();                                                                                         \
    }

#define KESTO_IMPLEMENT_DYNAMIC(Class, Base) KESTO_IMPLEMENT_RUNTIMECLASS_(Class, Base, nullptr)

#define KESTO_IMPLEMENT_DYNCREATE(Class, Base)                                                                         \
    ::KestoPlatform::CObject* Class::CreateObject()                                                                    \
    {                                                                                                                  \
        return new Class;                                                                                              \
    }                                                                                                                  \
    KESTO_IMPLEMENT_RUNTIMECLASS_(Class, Base, &Class::CreateObject)
