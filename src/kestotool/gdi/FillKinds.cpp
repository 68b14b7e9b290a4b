#include "kestotool/gdi/FillKinds.h"

#include "kestotool/gdi/CFillBitmap.h"
#include "kestotool/gdi/CFillConical.h"
#include "kestotool/gdi/CFillDiscreteMesh.h"
#include "kestotool/gdi/CFillEllipse.h"
#include "kestotool/gdi/CFillFourColour.h"
#include "kestotool/gdi/CFillFractal.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillNone.h"
#include "kestotool/gdi/CFillRadial.h"
#include "kestotool/gdi/CFillSolid.h"
#include "kestotool/gdi/CFillSquare.h"
#include "kestotool/gdi/CFillThreeColour.h"
#include "kestotool/gdi/CFillVector.h"
#include "kestotool/gdi/CTransparencyBitmap.h"
#include "kestotool/gdi/CTransparencyConical.h"
#include "kestotool/gdi/CTransparencyEllipse.h"
#include "kestotool/gdi/CTransparencyFlat.h"
#include "kestotool/gdi/CTransparencyFourPoint.h"
#include "kestotool/gdi/CTransparencyFractal.h"
#include "kestotool/gdi/CTransparencyLinear.h"
#include "kestotool/gdi/CTransparencyNone.h"
#include "kestotool/gdi/CTransparencyRadial.h"
#include "kestotool/gdi/CTransparencySquare.h"
#include "kestotool/gdi/CTransparencyThreePoint.h"

#include <algorithm>

namespace KestoGDI {

std::span<const FillKind> FillKinds::All()
{
    static const FillKind kinds[] = {
        {FillType::None, CFillNone::GetThisClass(), CTransparencyNone::GetThisClass(), L"No Fill", L"No Transparency",
         false},
        {FillType::Solid, CFillSolid::GetThisClass(), CTransparencyFlat::GetThisClass(), L"Solid", L"Flat", false},
        {FillType::Linear, CFillLinear::GetThisClass(), CTransparencyLinear::GetThisClass(), L"Linear", L"Linear",
         true},
        {FillType::Radial, CFillRadial::GetThisClass(), CTransparencyRadial::GetThisClass(), L"Radial", L"Radial",
         true},
        {FillType::Elliptical, CFillEllipse::GetThisClass(), CTransparencyEllipse::GetThisClass(), L"Elliptical",
         L"Elliptical", true},
        {FillType::Conical, CFillConical::GetThisClass(), CTransparencyConical::GetThisClass(), L"Conical", L"Conical",
         true},
        {FillType::Plasma, CFillFractal::GetThisClass(), CTransparencyFractal::GetThisClass(), L"Plasma", L"Plasma",
         true},
        {FillType::Square, CFillSquare::GetThisClass(), CTransparencySquare::GetThisClass(), L"Square", L"Square",
         true},
        {FillType::ThreeColour, CFillThreeColour::GetThisClass(), CTransparencyThreePoint::GetThisClass(),
         L"Three Colour", L"Three Point", true},
        {FillType::FourColour, CFillFourColour::GetThisClass(), CTransparencyFourPoint::GetThisClass(), L"Four Colour",
         L"Four Point", true},
        {FillType::Bitmap, CFillBitmap::GetThisClass(), CTransparencyBitmap::GetThisClass(), L"Bitmap", L"Bitmap",
         true},
        {FillType::DiscreteMesh, CFillDiscreteMesh::GetThisClass(), nullptr, L"Discrete Mesh", nullptr, false},
        {FillType::Vector, CFillVector::GetThisClass(), nullptr, L"Vector", nullptr, true},
    };
    return kinds;
}

const FillKind* FillKinds::Find(int type)
{
    const auto kinds = All();
    const auto it = std::find_if(kinds.begin(), kinds.end(), [type](const FillKind& k) { return k.type == type; });
    return it == kinds.end() ? nullptr : &*it;
}

} // namespace KestoGDI
