// A localised resource module as a translator would ship it, reduced to two texts and one of
// the dialogs' texts.
#include "kestotool/platform/Export.h"

#include <string_view>

extern "C" KESTO_API const wchar_t* KestoToolLocString(int id)
{
    switch (id) {
    case 117: return L"Original";
    case 123: return L"Füllung drehen";
    default: return nullptr;
    }
}

extern "C" KESTO_API const wchar_t* KestoToolLocDialogText(const wchar_t* english)
{
    return std::wstring_view(english) == L"Cancel" ? L"Abbrechen" : nullptr;
}
