#pragma once

#include "kestotool/platform/CString.h"
#include "kestotool/platform/DialogTemplate.h"
#include "kestotool/platform/Export.h"

namespace KestoPlatform {

// A module that holds resources (strings and dialog templates), registered in the process-wide chain that
// hosts search, as extension modules are on the classic platform.
class KESTO_API CResourceModule {
public:
    virtual ~CResourceModule() = default;
    virtual const char* GetName() const = 0;
    // Writes the string and answers true when the module has that id.
    virtual bool LoadString(int id, CString& out) const = 0;
    // The module's dialog template with that id, or null.
    virtual const DialogTemplate* LoadDialogTemplate(int id) const = 0;

    // The chain, searched in the order modules were added. Adding a module twice keeps one entry.
    static void AddToChain(const CResourceModule* module);
    static void RemoveFromChain(const CResourceModule* module);
    static bool IsInChain(const CResourceModule* module);
    // The first module's text for the id; false when no module has it.
    static bool FindString(int id, CString& out);
    // The first module's dialog template with that id, or null.
    static const DialogTemplate* FindDialogTemplate(int id);
};

} // namespace KestoPlatform
