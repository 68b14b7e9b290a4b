#pragma once

#include "kestotool/gdi/FillType.h"
#include "kestotool/gdi/KestoGDIImports.h"
#include "kestotool/platform/Export.h"

#include <span>

namespace KestoGDI {

// One kind of fill as the rest of the system needs to know it.
struct FillKind {
    FillType::Type type;
    const CRuntimeClass* fillClass;
    // Null for a kind that has no transparency (discrete mesh, vector).
    const CRuntimeClass* transparencyClass;
    // The names the type combos show for the fill and for the transparency.
    const wchar_t* fillName;
    const wchar_t* transparencyName;
    // The kind keeps a stop list (CFillWithStops).
    bool hasStops;
};

// The one table of fill kinds. Everything that lists kinds (run-time classes by type number,
// type combos, names) reads it; everything that acts per kind is a FillVisitor.
class KESTO_API FillKinds {
public:
    FillKinds() = delete;

    // Every kind, in the order the type combos list them.
    static std::span<const FillKind> All();
    // The kind with that type number; null for a number no kind has.
    static const FillKind* Find(int type);
};

} // namespace KestoGDI
