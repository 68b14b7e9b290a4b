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
using KestoKernel::RefPtr;
using Kesto2D::K2DArrayPoint;
using Kesto2D::K2DDblPoint;
using Kesto2D::K2DLtGeneral;
using Kesto2D::K2DVector;
using KestoPlatform::COLORREF;
using KestoPlatform::CPoint;
using KestoPlatform::CRect;
using KestoPlatform::CRuntimeClass;
} // namespace KestoGDI
