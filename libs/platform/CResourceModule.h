#pragma once

#include "platform/CString.h"

namespace Platform {

// A module that holds resources (strings for now), registered in the process-wide chain that
// hosts search, as extension modules are on the classic platform.
class CResourceModule {
public:
    virtual ~CResourceModule() = default;
    virtual const char* GetName() const = 0;
    // Writes the string and answers true when the module has that id.
    virtual bool LoadString(int id, CString& out) const = 0;

    // The chain, searched in the order modules were added. Adding a module twice keeps one entry.
    static void AddToChain(const CResourceModule* module);
    static void RemoveFromChain(const CResourceModule* module);
    static bool IsInChain(const CResourceModule* module);
    // The first module's text for the id; false when no module has it.
    static bool FindString(int id, CString& out);
};

} // namespace Platform
