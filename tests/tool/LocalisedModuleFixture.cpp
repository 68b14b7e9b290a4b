// A localised resource module as a translator would ship it, reduced to two texts.
#include "kestotool/platform/Export.h"

extern "C" KESTO_API const wchar_t* KestoToolLocString(int id)
{
    switch (id) {
    case 117: return L"Original";
    case 123: return L"Füllung drehen";
    default: return nullptr;
    }
}
