#pragma once

// What the fill model takes from the layers below it, so that its code reads the names unqualified.
#include "kestotool/geometry/K2DArrayPoint.h"
#include "kestotool/geometry/K2DDblPoint.h"
#include "kestotool/geometry/K2DLtGeneral.h"
#include "kestotool/kernel/RefPtr.h"
#include "kestotool/platform/CObject.h"
#include "kestotool/platform/CRect.h"
#include "kestotool/platform/ColourRef.h"

namespace KestoGDI {
using Kernel::RefPtr;
using Kesto2D::K2DArrayPoint;
using Kesto2D::K2DDblPoint;
using Kesto2D::K2DLtGeneral;
using Kesto2D::K2DVector;
using Platform::COLORREF;
using Platform::CPoint;
using Platform::CRect;
using Platform::CRuntimeClass;
} // namespace KestoGDI
