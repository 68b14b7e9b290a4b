#pragma once

#include <kestotool/gdi/CColour.h>
#include <kestotool/gdi/CFill.h>
#include <kestotool/gdi/CLtBitmap.h>
#include <kestotool/raster/Path.h>

#include <QJsonArray>
#include <QJsonObject>

#include <map>
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

    // The pictures of one document being read: identical ones are decoded once and shared, and
    // all of them together hold at most kMaxPixels pixels (a file cannot make the program hold
    // gigabytes of pixels decoded from a few megabytes of PNG).
    class Pictures {
    public:
        static constexpr qint64 kMaxPixels = 64'000'000;
        explicit Pictures(qint64 maxPixels = kMaxPixels) : m_maxPixels(maxPixels) {}
        KestoKernel::RefPtr<const KestoGDI::CLtBitmap> Read(const QString& base64);

    private:
        qint64 m_maxPixels;
        std::map<QString, KestoKernel::RefPtr<const KestoGDI::CLtBitmap>> m_read;
        qint64 m_pixels = 0;
    };

    static QJsonObject Write(const KestoGDI::CFill& fill);
    // A new fill; throws FormatError for anything that is not a fill this program wrote.
    // Pictures read with the same pool are shared and counted.
    static KestoKernel::RefPtr<KestoGDI::CFill> Read(const QJsonValue& value, Pictures* pictures = nullptr);

    static QJsonObject WriteColour(const KestoGDI::CColour& colour);
    static std::unique_ptr<KestoGDI::CColour> ReadColour(const QJsonValue& value);
    // An outline as segments ["M", x, y], ["L", x, y], ["C", x1, y1, x2, y2, x, y], ["Z"].
    static QJsonArray WritePath(const KestoRaster::Path& path);
    static KestoRaster::Path ReadPath(const QJsonArray& in);
};

} // namespace KestoDraw
