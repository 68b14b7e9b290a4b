#pragma once

// What the geometry library takes from the platform, so that its code reads the names unqualified.
#include "kestotool/platform/CPoint.h"
#include "kestotool/platform/CRect.h"
#include "kestotool/platform/CSize.h"

namespace Kesto2D {
using KestoPlatform::CPoint;
using KestoPlatform::CRect;
using KestoPlatform::CSize;
using KestoPlatform::SIZE;
} // namespace Kesto2D
