#include "tool/Module.h"

#include "resources/DialogTemplates.h"
#include "resources/StringTable.h"

#include <dlfcn.h>

#include <filesystem>

namespace KestoTool {

Module& Module::Get()
{
    static Module module;
    return module;
}

Module::Module()
{
    AddToChain(this);
    const std::filesystem::path beside = std::filesystem::path(GetLibraryPath()).parent_path() / LocalisedModuleName;
    UseLocalisedModule(beside.string());
}

Module::~Module()
{
    RemoveFromChain(this);
}

std::wstring Module::GetLibraryPath()
{
    Dl_info info{};
    if (!dladdr(reinterpret_cast<void*>(&Module::GetLibraryPath), &info) || !info.dli_fname)
        return {};
    return std::filesystem::absolute(info.dli_fname).wstring();
}

bool Module::UseLocalisedModule(const std::string& path)
{
    void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle)
        return false;
    auto lookup = reinterpret_cast<Lookup>(dlsym(handle, LocalisedStringEntry));
    if (!lookup) {
        dlclose(handle);
        return false;
    }
    m_lookup = lookup;
    return true;
}

bool Module::LoadString(int id, CString& out) const
{
    const wchar_t* text = m_lookup ? m_lookup(id) : nullptr;
    if (!text)
        text = FindBuiltInString(id);
    if (!text)
        return false;
    out = CString(text);
    return true;
}

const Platform::DialogTemplate* Module::LoadDialogTemplate(int id) const
{
    return FindBuiltInDialogTemplate(id);
}

CString Module::LoadString(int id) const
{
    CString text;
    LoadString(id, text);
    return text;
}

namespace {

// Joins the resource chain and picks up the localised module as soon as the library loads.
[[gnu::constructor]] void StartUp()
{
    Module::Get();
}

} // namespace

} // namespace KestoTool
