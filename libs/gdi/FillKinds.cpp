#include "gdi/FillKinds.h"

#include "gdi/CFillBitmap.h"
#include "gdi/CFillConical.h"
#include "gdi/CFillDiscreteMesh.h"
#include "gdi/CFillEllipse.h"
#include "gdi/CFillFourColour.h"
#include "gdi/CFillFractal.h"
#include "gdi/CFillLinear.h"
#include "gdi/CFillNone.h"
#include "gdi/CFillRadial.h"
#include "gdi/CFillSolid.h"
#include "gdi/CFillSquare.h"
#include "gdi/CFillThreeColour.h"
#include "gdi/CFillVector.h"
#include "gdi/CTransparencyBitmap.h"
#include "gdi/CTransparencyConical.h"
#include "gdi/CTransparencyEllipse.h"
#include "gdi/CTransparencyFlat.h"
#include "gdi/CTransparencyFourPoint.h"
#include "gdi/CTransparencyFractal.h"
#include "gdi/CTransparencyLinear.h"
#include "gdi/CTransparencyNone.h"
#include "gdi/CTransparencyRadial.h"
#include "gdi/CTransparencySquare.h"
#include "gdi/CTransparencyThreePoint.h"

#include <algorithm>

namespace KestoGDI {

std::span<const FillKind> FillKinds::All()
{
    static const FillKind kinds[] = {
        {FillType::None, CFillNone::GetThisClass(), CTransparencyNone::GetThisClass(), L"No Fill",
         L"No Transparency", false},
        {FillType::Solid, CFillSolid::GetThisClass(), CTransparencyFlat::GetThisClass(), L"Solid", L"Flat", false},
        {FillType::Linear, CFillLinear::GetThisClass(), CTransparencyLinear::GetThisClass(), L"Linear", L"Linear",
         true},
        {FillType::Radial, CFillRadial::GetThisClass(), CTransparencyRadial::GetThisClass(), L"Radial", L"Radial",
         true},
        {FillType::Elliptical, CFillEllipse::GetThisClass(), CTransparencyEllipse::GetThisClass(), L"Elliptical",
         L"Elliptical", true},
        {FillType::Conical, CFillConical::GetThisClass(), CTransparencyConical::GetThisClass(), L"Conical",
         L"Conical", true},
        {FillType::Plasma, CFillFractal::GetThisClass(), CTransparencyFractal::GetThisClass(), L"Plasma", L"Plasma",
         true},
        {FillType::Square, CFillSquare::GetThisClass(), CTransparencySquare::GetThisClass(), L"Square", L"Square",
         true},
        {FillType::ThreeColour, CFillThreeColour::GetThisClass(), CTransparencyThreePoint::GetThisClass(),
         L"Three Colour", L"Three Point", true},
        {FillType::FourColour, CFillFourColour::GetThisClass(), CTransparencyFourPoint::GetThisClass(),
         L"Four Colour", L"Four Point", true},
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
