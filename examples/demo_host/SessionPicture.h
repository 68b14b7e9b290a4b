#pragma once

#include <kestotool/filltool/FillTool.h>

#include <string>

// Writes a PNG of the object (its box in document units) painted with fill by the renderer over
// a checkerboard, and the tool's own lines and handles drawn over it, with margin pixels round
// the object so that handles outside it show, at unitsPerPixel document units to a pixel.
// False when the file cannot be written.
bool WriteSessionPicture(const std::string& path, const KestoPlatform::CRect& object, const KestoGDI::CFill& fill,
                         const KestoTool::FillTool& tool, int margin = 90, double unitsPerPixel = 1);
