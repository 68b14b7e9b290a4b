#pragma once

#include <kestotool/gdi/CColour.h>
#include <kestotool/gdi/CFill.h>

#include <QJsonObject>

#include <memory>

namespace KestoDraw {

// Fills and transparencies as JSON objects, every attribute of every kind: the type number and
// whether it is a transparency, the fill's opacity, blend mode and overprint, its control points
// in full precision, its stops (colour, position, blend spline) and what its kind adds (a solid
// colour; the plasma's seed, grain, resolution and tiling; a bitmap's pixels as a PNG; a vector
// fill's drawing, spacing, turns, flips and transforms; a mesh's grid). Writing and reading a
// fill gives an equal fill, and writing it again the same JSON.
class FillJson {
public:
    FillJson() = delete;

    static QJsonObject Write(const KestoGDI::CFill& fill);
    // A new fill; throws FormatError for anything that is not a fill this program wrote.
    static KestoKernel::RefPtr<KestoGDI::CFill> Read(const QJsonValue& value);

    static QJsonObject WriteColour(const KestoGDI::CColour& colour);
    static std::unique_ptr<KestoGDI::CColour> ReadColour(const QJsonValue& value);
};

} // namespace KestoDraw
