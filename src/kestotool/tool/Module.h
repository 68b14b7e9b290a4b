#pragma once

#include "kestotool/platform/CResourceModule.h"
#include "kestotool/platform/Export.h"
#include "kestotool/tool/KestoToolImports.h"

#include <deque>
#include <map>
#include <string>

namespace KestoTool {

// The library as a resource module. When the library loads it joins the platform's chain of
// resource modules and looks beside its own file for the localised module, a shared object
// named LocalisedModuleName. If that loads, it becomes the resource handle: its texts replace
// the built-in ones (an id it lacks falls back to the built-in text). Otherwise the built-in
// resources are used: silently when there is no such file, with one report when the file is
// truncated, foreign or writable by others (it is checked before it is loaded). A module that
// is replaced is unloaded.
//
// A localised module exports one C function, LocalisedStringEntry, and may export a second,
// LocalisedDialogTextEntry, for the dialogs' captions and their controls' texts (the layouts
// stay the library's):
//     extern "C" const wchar_t* KestoToolLocString(int id);   // null for an id it lacks
//     extern "C" const wchar_t* KestoToolLocDialogText(const wchar_t* english);   // likewise
class KESTO_API Module : public KestoPlatform::CResourceModule {
public:
    static constexpr const char* LocalisedModuleName = "libKestoToolLoc.so";
    static constexpr const char* LocalisedStringEntry = "KestoToolLocString";
    static constexpr const char* LocalisedDialogTextEntry = "KestoToolLocDialogText";

    static Module& Get();

    const char* GetName() const override { return "KestoTool"; }
    bool LoadString(int id, CString& out) const override;
    // The text for an id; empty for an id no resource has.
    CString LoadString(int id) const;
    // The library's dialog templates, their texts the localised module's where it has them (a
    // localised module does not replace layouts).
    const KestoPlatform::DialogTemplate* LoadDialogTemplate(int id) const override;
    // A dialog text that a dialog sets itself (one its templates hold too): the localised
    // module's where it has it, else english.
    CString LoadDialogText(const wchar_t* english) const;

    // The full path of the library's own file, resolved once when the library loads.
    static std::wstring GetLibraryPath();
    // Makes the module at path the resource handle. False, with the current handle kept,
    // when it is missing, fails the file check (reported), does not load or lacks the entry point.
    bool UseLocalisedModule(const std::string& path);
    void UseBuiltInResources();
    bool IsLocalised() const { return m_lookup != nullptr; }

    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;

private:
    Module();
    ~Module() override;

    using Lookup = const wchar_t* (*)(int);
    using DialogTextLookup = const wchar_t* (*)(const wchar_t*);
    Lookup m_lookup = nullptr;
    DialogTextLookup m_dialogText = nullptr;
    void* m_handle = nullptr;
    // The templates with the localised module's texts, made when first asked for; each is kept
    // for the process, as a dialog open when the module changes still reads its own.
    mutable std::map<int, const KestoPlatform::DialogTemplate*> m_localisedTemplates;
    mutable std::deque<KestoPlatform::DialogTemplate> m_madeTemplates;
};

} // namespace KestoTool
