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
using Kernel::RefPtr;
using KestoGDI::CLtBitmap;
using Platform::CPoint;
using Platform::CRect;
using Platform::CSize;
using Platform::CString;
} // namespace KestoTool
