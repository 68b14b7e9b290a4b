#pragma once

// What the product takes from the libraries below it, so that its code reads the names
// unqualified.
#include "kestotool/gdi/CLtBitmap.h"
#include "kestotool/kernel/CRefCount.h"
#include "kestotool/kernel/RefPtr.h"
#include "kestotool/platform/CPoint.h"
#include "kestotool/platform/CRect.h"
#include "kestotool/platform/CString.h"

namespace KestoTool {
using KestoKernel::RefPtr;
using KestoGDI::CLtBitmap;
using KestoPlatform::CPoint;
using KestoPlatform::CRect;
using KestoPlatform::CSize;
using KestoPlatform::CString;
} // namespace KestoTool
