#include "gdi/CTransparency.h"

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

namespace KestoGDI {

const CRuntimeClass* CTransparency::GetRuntimeClassFromType(int type)
{
    switch (type) {
    case FillType::None: return CTransparencyNone::GetThisClass();
    case FillType::Solid: return CTransparencyFlat::GetThisClass();
    case FillType::Linear: return CTransparencyLinear::GetThisClass();
    case FillType::Radial: return CTransparencyRadial::GetThisClass();
    case FillType::ThreeColour: return CTransparencyThreePoint::GetThisClass();
    case FillType::FourColour: return CTransparencyFourPoint::GetThisClass();
    case FillType::Plasma: return CTransparencyFractal::GetThisClass();
    case FillType::Square: return CTransparencySquare::GetThisClass();
    case FillType::Elliptical: return CTransparencyEllipse::GetThisClass();
    case FillType::Conical: return CTransparencyConical::GetThisClass();
    case FillType::Bitmap: return CTransparencyBitmap::GetThisClass();
    default: return nullptr;
    }
}

} // namespace KestoGDI
