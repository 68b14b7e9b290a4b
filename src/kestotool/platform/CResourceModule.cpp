#include "kestotool/platform/CResourceModule.h"

#include <algorithm>
#include <vector>

namespace KestoPlatform {
namespace {

std::vector<const CResourceModule*>& Chain()
{
    static std::vector<const CResourceModule*> chain;
    return chain;
}

} // namespace

void CResourceModule::AddToChain(const CResourceModule* module)
{
    if (module && !IsInChain(module))
        Chain().push_back(module);
}

void CResourceModule::RemoveFromChain(const CResourceModule* module)
{
    auto& chain = Chain();
    chain.erase(std::remove(chain.begin(), chain.end(), module), chain.end());
}

bool CResourceModule::IsInChain(const CResourceModule* module)
{
    const auto& chain = Chain();
    return std::find(chain.begin(), chain.end(), module) != chain.end();
}

bool CResourceModule::FindString(int id, CString& out)
{
    for (const CResourceModule* m : Chain()) {
        if (m->LoadString(id, out))
            return true;
    }
    return false;
}

const DialogTemplate* CResourceModule::FindDialogTemplate(int id)
{
    for (const CResourceModule* m : Chain()) {
        if (const DialogTemplate* t = m->LoadDialogTemplate(id))
            return t;
    }
    return nullptr;
}

} // namespace KestoPlatform
