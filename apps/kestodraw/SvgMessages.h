#pragma once

#include <kestotool/exchange/SvgReader.h>

#include <QString>

namespace KestoDraw {

// What the SVG reader says, in the user's language: its pattern translated, its arguments (the
// file's own words and numbers) put in as they are.
QString SvgMessageText(const KestoTool::SvgReader::Message& message);

} // namespace KestoDraw
