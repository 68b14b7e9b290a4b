#pragma once

#include "DemoHost.h"

#include <string>

// A fill in words: its kind, its control points and its stops (position:#rrggbb, with the
// alpha when not opaque).
std::string DescribeFill(const KestoGDI::CFill& fill);

// Prints one step of a session: the hint line, the handles (and the current one) and what the
// host committed since commitsBefore.
void ReportStep(const char* step, DemoHost& host, KestoTool::FillTool& tool, int commitsBefore);
