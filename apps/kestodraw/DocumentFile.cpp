#include "DocumentFile.h"

#include "FileRead.h"
#include "FillJson.h"
#include "JsonRead.h"

#include <kestotool/geometry/CoordinateRange.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <QSaveFile>
#include <algorithm>

#include <fcntl.h>
#include <unistd.h>

namespace KestoDraw {

using namespace JsonRead;

namespace {

constexpr int kMaxPage = 1 << 20;
// Far beyond what a person draws, and bounded so that a hostile file's painting stays bounded.
constexpr int kMaxPathCorners = 20000;
constexpr qint64 kMaxFileBytes = qint64(256) << 20;

const char* KindName(Shape::Kind kind)
{
    switch (kind) {
    case Shape::Kind::Rectangle: return "rectangle";
    case Shape::Kind::Ellipse: return "ellipse";
    case Shape::Kind::Path: return "path";
    case Shape::Kind::Curves: return "curves";
    }
    return "";
}

// The whole units that hold the outline's points (its controls too), within the coordinate range.
KestoPlatform::CRect CurvesBox(const KestoRaster::Path& curves)
{
    double box[4] = {1e300, 1e300, -1e300, -1e300};
    for (const KestoRaster::Point p : curves.Points())
        box[0] = std::min(box[0], p.x), box[1] = std::min(box[1], p.y), box[2] = std::max(box[2], p.x),
        box[3] = std::max(box[3], p.y);
    const auto whole = [](double v) {
        return static_cast<int>(std::clamp(v, -double(Kesto2D::CoordinateLimit), double(Kesto2D::CoordinateLimit)));
    };
    return KestoPlatform::CRect(whole(std::floor(box[0])), whole(std::floor(box[1])), whole(std::ceil(box[2])),
                                whole(std::ceil(box[3])));
}

QJsonObject WriteShape(const Shape& shape)
{
    QJsonObject out{{"kind", KindName(shape.kind)},
                    {"box", QJsonArray{shape.box.left, shape.box.top, shape.box.right, shape.box.bottom}},
                    {"fill", FillJson::Write(*shape.fill)}};
    if (shape.kind == Shape::Kind::Path) {
        QJsonArray points;
        for (const KestoPlatform::CPoint& p : shape.points)
            points.append(QJsonArray{p.x, p.y});
        out["points"] = points;
    }
    if (shape.kind == Shape::Kind::Curves)
        out["outline"] = FillJson::WritePath(shape.curves);
    if (shape.transparency)
        out["transparency"] = FillJson::Write(*shape.transparency);
    return out;
}

// A whole number within min..max (by default, the coordinate range).
int Coordinate(const QJsonValue& value, const QString& what, int min = -Kesto2D::CoordinateLimit,
               int max = Kesto2D::CoordinateLimit)
{
    const double v = Number(value, what, min, max);
    if (v != static_cast<int>(v))
        throw FormatError(FormatError::tr("%1 should be a whole number").arg(what));
    return static_cast<int>(v);
}

Shape ReadShape(const QJsonValue& value, FillJson::Pictures& pictures)
{
    const QJsonObject in = Object(value, FormatError::tr("a shape"));
    Shape shape;
    const QString kind = String(in, "kind");
    if (kind == "rectangle")
        shape.kind = Shape::Kind::Rectangle;
    else if (kind == "ellipse")
        shape.kind = Shape::Kind::Ellipse;
    else if (kind == "path")
        shape.kind = Shape::Kind::Path;
    else if (kind == "curves")
        shape.kind = Shape::Kind::Curves;
    else
        throw FormatError(FormatError::tr("a shape's kind should be rectangle, ellipse, path or curves, not \"%1\"")
                              .arg(Excerpt(kind)));
    const QJsonArray box = Array(in, "box");
    if (box.size() != 4)
        throw FormatError(FormatError::tr("\"box\" should be four numbers: left, top, right, bottom"));
    shape.box = KestoPlatform::CRect(Coordinate(box[0], "\"box\""), Coordinate(box[1], "\"box\""),
                                     Coordinate(box[2], "\"box\""), Coordinate(box[3], "\"box\""))
                    .Normalized();
    if (shape.kind == Shape::Kind::Path) {
        const QJsonArray points = Array(in, "points");
        if (points.size() < 3 || points.size() > kMaxPathCorners)
            throw FormatError(FormatError::tr("a path should have 3 to %1 corners").arg(kMaxPathCorners));
        for (const QJsonValue& p : points) {
            const QJsonArray xy = p.toArray();
            if (xy.size() != 2)
                throw FormatError(FormatError::tr("a path corner should be [x, y]"));
            shape.points.emplace_back(Coordinate(xy[0], FormatError::tr("a path corner")),
                                      Coordinate(xy[1], FormatError::tr("a path corner")));
        }
        // A path's box is its corners' bounds, whatever the file says (the file format keeps it
        // for readers that only want the bounds).
        const auto [xs, xe] = std::minmax_element(shape.points.begin(), shape.points.end(),
                                                  [](const auto& a, const auto& b) { return a.x < b.x; });
        const auto [ys, ye] = std::minmax_element(shape.points.begin(), shape.points.end(),
                                                  [](const auto& a, const auto& b) { return a.y < b.y; });
        shape.box = KestoPlatform::CRect(xs->x, ys->y, xe->x, ye->y);
    }
    if (shape.kind == Shape::Kind::Curves) {
        const QJsonArray outline = Array(in, "outline");
        if (outline.isEmpty() || outline.size() > DocumentFile::MaxOutlineSegments)
            throw FormatError(
                FormatError::tr("an outline should have 1 to %1 segments").arg(DocumentFile::MaxOutlineSegments));
        shape.curves = FillJson::ReadPath(outline);
        shape.box = CurvesBox(shape.curves);
    }
    shape.fill = FillJson::Read(in.value("fill"), &pictures);
    if (shape.fill->IsTransparency())
        throw FormatError(FormatError::tr("a shape's \"fill\" is a transparency"));
    if (in.contains("transparency")) {
        shape.transparency = FillJson::Read(in.value("transparency"), &pictures);
        if (!shape.transparency->IsTransparency())
            throw FormatError(FormatError::tr("a shape's \"transparency\" is a fill"));
    }
    return shape;
}

} // namespace

QByteArray DocumentFile::Write(const Document& document)
{
    QJsonArray shapes;
    for (const Shape& shape : document.shapes)
        shapes.append(WriteShape(shape));
    const QJsonObject root{{"format", "kestodraw"},
                           {"version", Version},
                           {"page", QJsonArray{document.width, document.height}},
                           {"shapes", shapes}};
    return QJsonDocument(root).toJson(QJsonDocument::Indented);
}

Document DocumentFile::Read(const QByteArray& bytes)
{
    QJsonParseError parse{};
    const QJsonDocument json = QJsonDocument::fromJson(bytes, &parse);
    if (parse.error != QJsonParseError::NoError)
        throw FormatError(tr("it is not a JSON document (%1 at byte %2)").arg(parse.errorString()).arg(parse.offset));
    if (!json.isObject() || json.object().value("format").toString() != "kestodraw")
        throw FormatError(tr("it is not a kestodraw drawing"));
    const QJsonObject root = json.object();
    const int version = Int(root, "version", 0, 1 << 30);
    if (version > Version)
        throw FormatError(
            tr("it was saved by a newer kestodraw (format version %1; this one reads %2)").arg(version).arg(Version));
    Document document;
    const QJsonArray page = Array(root, "page");
    if (page.size() != 2)
        throw FormatError(FormatError::tr("\"page\" should be [width, height]"));
    document.width = Coordinate(page[0], FormatError::tr("the page width"), 1, kMaxPage);
    document.height = Coordinate(page[1], FormatError::tr("the page height"), 1, kMaxPage);
    const QJsonArray shapes = Array(root, "shapes");
    if (shapes.size() > DocumentFile::MaxShapes)
        throw FormatError(
            tr("it has %1 shapes; a drawing holds at most %2").arg(shapes.size()).arg(DocumentFile::MaxShapes));
    FillJson::Pictures pictures;
    for (const QJsonValue& shape : shapes)
        document.shapes.push_back(ReadShape(shape, pictures));
    return document;
}

bool DocumentFile::Save(const Document& document, const QString& path, QString* error)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        const QByteArray bytes = Write(document);
        if (file.write(bytes) == bytes.size() && file.commit()) {
            // The rename that replaced the file lasts only once its folder is on the disk too.
            const int folder = ::open(QFile::encodeName(QFileInfo(path).absolutePath()).constData(),
                                      O_RDONLY | O_DIRECTORY | O_CLOEXEC);
            if (folder >= 0) {
                ::fsync(folder);
                ::close(folder);
            }
            return true;
        }
    }
    if (error)
        *error = file.errorString();
    return false;
}

std::optional<Document> DocumentFile::Open(const QString& path, QString* error)
{
    const std::optional<QByteArray> bytes = ReadRegularFile(path, kMaxFileBytes, error);
    if (!bytes)
        return std::nullopt;
    try {
        return Read(*bytes);
    } catch (const FormatError& e) {
        if (error)
            *error = e.Message();
        return std::nullopt;
    }
}

} // namespace KestoDraw
