#include "kestotool/tool/Module.h"

#include "kestotool/kernel/VerifyReporter.h"
#include "kestotool/resources/DialogTemplates_p.h"
#include "kestotool/resources/StringTable_p.h"
#include "kestotool/tool/ModuleFileCheck.h"

#include <dlfcn.h>

#include <filesystem>
#include <utility>

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
    // Resolved once, when the library loads: a host that later changes its directory must not
    // move where the library finds its archive and its localised module.
    static const std::wstring path = [] {
        Dl_info info{};
        if (!dladdr(reinterpret_cast<void*>(&Module::GetLibraryPath), &info) || !info.dli_fname)
            return std::wstring();
        std::error_code error;
        const std::filesystem::path resolved = std::filesystem::weakly_canonical(info.dli_fname, error);
        return (error ? std::filesystem::absolute(info.dli_fname) : resolved).wstring();
    }();
    return path;
}

bool Module::UseLocalisedModule(const std::string& path)
{
    if (!std::filesystem::exists(path))
        return false;
    if (const std::string problem = ModuleFileCheck::Problem(path); !problem.empty()) {
        KestoKernel::VerifyFailed("KestoTool", "Module", 1,
                                  "the localised module " + path + " is not loaded, " + problem +
                                      "; built-in texts are used");
        return false;
    }
    void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle)
        return false;
    auto lookup = reinterpret_cast<Lookup>(dlsym(handle, LocalisedStringEntry));
    if (!lookup) {
        dlclose(handle);
        return false;
    }
    UseBuiltInResources();
    m_handle = handle;
    m_lookup = lookup;
    m_dialogText = reinterpret_cast<DialogTextLookup>(dlsym(handle, LocalisedDialogTextEntry));
    return true;
}

void Module::UseBuiltInResources()
{
    m_lookup = nullptr;
    m_dialogText = nullptr;
    m_localisedTemplates.clear();
    if (m_handle)
        dlclose(std::exchange(m_handle, nullptr));
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

const KestoPlatform::DialogTemplate* Module::LoadDialogTemplate(int id) const
{
    const KestoPlatform::DialogTemplate* builtIn = FindBuiltInDialogTemplate(id);
    if (!builtIn || !m_dialogText)
        return builtIn;
    if (const auto it = m_localisedTemplates.find(id); it != m_localisedTemplates.end())
        return it->second;
    KestoPlatform::DialogTemplate localised = *builtIn;
    const auto translate = [this](std::wstring& text) {
        if (const wchar_t* translated = text.empty() ? nullptr : m_dialogText(text.c_str()))
            text = translated;
    };
    translate(localised.caption);
    for (KestoPlatform::DialogItemTemplate& item : localised.items)
        translate(item.text);
    const KestoPlatform::DialogTemplate* made = &m_madeTemplates.emplace_back(std::move(localised));
    m_localisedTemplates[id] = made;
    return made;
}

CString Module::LoadDialogText(const wchar_t* english) const
{
    const wchar_t* translated = m_dialogText ? m_dialogText(english) : nullptr;
    return CString(translated ? translated : english);
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
