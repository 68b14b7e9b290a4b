#pragma once

// What the product takes from the libraries below it, so that its code reads the names
// unqualified.
#include "gdi/CLtBitmap.h"
#include "kernel/CRefCount.h"
#include "kernel/RefPtr.h"
#include "platform/CPoint.h"
#include "platform/CRect.h"
#include "platform/CString.h"

namespace KestoTool {
using Kernel::RefPtr;
using KestoGDI::CLtBitmap;
using Platform::CPoint;
using Platform::CRect;
using Platform::CSize;
using Platform::CString;
} // namespace KestoTool
