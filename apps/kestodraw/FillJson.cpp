#include "FillJson.h"

#include "JsonRead.h"

#include <kestotool/gdi/CFillBitmap.h>
#include <kestotool/gdi/CFillDiscreteMesh.h>
#include <kestotool/gdi/CFillFractal.h>
#include <kestotool/gdi/CFillSolid.h>
#include <kestotool/gdi/CFillVector.h>
#include <kestotool/gdi/CFillWithStops.h>
#include <kestotool/gdi/CMonoColour.h>
#include <kestotool/gdi/CRGBColour.h>
#include <kestotool/gdi/CTransparency.h>
#include <kestotool/gdi/ColourIntPairs.h>
#include <kestotool/geometry/CoordinateRange.h>

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QJsonArray>

#include <array>
#include <cstring>

namespace KestoDraw {

using namespace KestoGDI;
using namespace JsonRead;

namespace {

// A vector fill's drawing may hold vector fills; a file nesting deeper than this is refused
// rather than read to the end of the stack.
constexpr int kMaxNesting = 8;
constexpr double kLimit = Kesto2D::CoordinateLimit;
// Bitmaps in documents are tiles; anything larger is a damaged or hostile file.
constexpr int kMaxBitmapSide = 4096;

QJsonArray WritePoint(double x, double y)
{
    return {x, y};
}

K2DDblPoint ReadPoint(const QJsonValue& value, const QString& what)
{
    const QJsonArray pair = value.toArray();
    if (pair.size() != 2)
        throw FormatError(FormatError::tr("%1 should be a point [x, y]").arg(what));
    return {Number(pair[0], what, -kLimit, kLimit), Number(pair[1], what, -kLimit, kLimit)};
}

QJsonArray WriteTransform(const K2DLtGeneral& t)
{
    return {t.GetM11(), t.GetM12(), t.GetM21(), t.GetM22(), t.GetTranslation().dx, t.GetTranslation().dy};
}

K2DLtGeneral ReadTransform(const QJsonObject& in, const QString& key)
{
    const QJsonArray values = Array(in, key);
    if (values.size() != 6)
        throw FormatError(FormatError::tr("\"%1\" should be six numbers").arg(key));
    std::array<double, 6> m{};
    for (int i = 0; i < 6; ++i)
        m[i] = Number(values[i], QStringLiteral("\"%1\"").arg(key), -1e12, 1e12);
    return {m[0], m[1], m[2], m[3], m[4], m[5]};
}

QJsonArray WriteStops(const ColourIntPairs& stops)
{
    QJsonArray out;
    for (const CColourIntPair& stop : stops) {
        QJsonObject s{{"at", stop.GetValue()}, {"colour", FillJson::WriteColour(stop.GetColour())}};
        if (!stop.IsStraight())
            s["spline"] = QJsonArray{stop.GetSpline().GetC1(), stop.GetSpline().GetC2()};
        out.append(s);
    }
    return out;
}

ColourIntPairs ReadStops(const QJsonArray& in)
{
    ColourIntPairs stops;
    for (const QJsonValue& value : in) {
        const QJsonObject s = Object(value, FormatError::tr("a stop"));
        CSpline spline;
        if (s.contains("spline")) {
            const QJsonArray c = Array(s, "spline");
            if (c.size() != 2)
                throw FormatError(FormatError::tr("\"spline\" should be two numbers"));
            spline = CSpline(Number(c[0], "\"spline\"", 0, 1), Number(c[1], "\"spline\"", 0, 1));
        }
        stops.Add(CColourIntPair(*FillJson::ReadColour(s.value("colour")), Int(s, "at", 0, 10000), spline));
    }
    return stops;
}

QString WriteBitmap(const CLtBitmap& bitmap)
{
    QImage image(bitmap.GetWidth(), bitmap.GetHeight(), QImage::Format_ARGB32);
    for (int y = 0; y < bitmap.GetHeight(); ++y)
        std::memcpy(image.scanLine(y), bitmap.GetBits() + static_cast<std::size_t>(y) * bitmap.GetWidth(),
                    sizeof(std::uint32_t) * bitmap.GetWidth());
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    image.save(&png, "PNG");
    return QString::fromLatin1(png.data().toBase64());
}

RefPtr<const CLtBitmap> ReadBitmap(const QString& base64)
{
    // The header first: a picture too large is refused before anything is decoded.
    QByteArray bytes = QByteArray::fromBase64(base64.toLatin1());
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "PNG");
    const QSize size = reader.size();
    if (size.isValid() && (size.width() > kMaxBitmapSide || size.height() > kMaxBitmapSide))
        throw FormatError(FormatError::tr("\"bitmap\" is %1 x %2 pixels; at most %3 a side are read")
                              .arg(size.width())
                              .arg(size.height())
                              .arg(kMaxBitmapSide));
    const QImage image = reader.read().convertToFormat(QImage::Format_ARGB32);
    if (image.isNull())
        throw FormatError(
            FormatError::tr("\"bitmap\" is no PNG image that can be read (%1)").arg(reader.errorString()));
    RefPtr<CLtBitmap> bitmap(new CLtBitmap(image.width(), image.height()));
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(bitmap->GetBits() + static_cast<std::size_t>(y) * bitmap->GetWidth(), image.constScanLine(y),
                    sizeof(std::uint32_t) * image.width());
    return bitmap;
}

KestoKernel::RefPtr<CFill> ReadFill(const QJsonValue& value, int depth, FillJson::Pictures* pictures);

QJsonObject WriteDrawing(const VectorDrawing& drawing)
{
    QJsonArray shapes;
    for (const VectorDrawing::Shape& shape : drawing.GetShapes()) {
        QJsonObject s{{"path", FillJson::WritePath(shape.outline)}};
        if (shape.fill)
            s["fill"] = FillJson::Write(*shape.fill);
        shapes.append(s);
    }
    return {{"width", drawing.GetWidth()}, {"height", drawing.GetHeight()}, {"shapes", shapes}};
}

RefPtr<const VectorDrawing> ReadDrawing(const QJsonObject& in, int depth, FillJson::Pictures* pictures)
{
    RefPtr<VectorDrawing> drawing(new VectorDrawing(Int(in, "width", 1, 1 << 20), Int(in, "height", 1, 1 << 20)));
    for (const QJsonValue& value : Array(in, "shapes")) {
        const QJsonObject s = Object(value, FormatError::tr("a drawing's shape"));
        RefPtr<const CFill> fill;
        if (s.contains("fill"))
            fill = ReadFill(s.value("fill"), depth + 1, pictures);
        drawing->AddShape(FillJson::ReadPath(Array(s, "path")), std::move(fill));
    }
    return drawing;
}

// What each kind adds to the attributes every fill has.
class KindWriter : public ConstFillVisitor {
public:
    explicit KindWriter(QJsonObject& out) : m_out(out) {}

    void Visit(const CFillNone&) override {}
    void Visit(const CFillSolid& fill) override { m_out["colour"] = FillJson::WriteColour(fill.GetColour()); }
    void Visit(const CFillLinear&) override {}
    void Visit(const CFillRadial&) override {}
    void Visit(const CFillEllipse&) override {}
    void Visit(const CFillConical&) override {}
    void Visit(const CFillSquare&) override {}
    void Visit(const CFillThreeColour&) override {}
    void Visit(const CFillFourColour&) override {}
    void Visit(const CFillFractal& fill) override
    {
        m_out["grain"] = fill.GetGrain();
        m_out["resolution"] = fill.GetResolution();
        m_out["seed"] = static_cast<double>(fill.GetSeed());
        m_out["tileInverted"] = fill.GetTileInverted();
    }
    void Visit(const CFillBitmap& fill) override
    {
        WriteTiling(fill);
        if (fill.GetBitmapForFill())
            m_out["bitmap"] = WriteBitmap(*fill.GetBitmapForFill());
    }
    void Visit(const CFillDiscreteMesh& fill) override
    {
        m_out["columns"] = fill.GetColumns();
        m_out["rows"] = fill.GetRows();
        QJsonArray nodes;
        for (int row = 0; row < fill.GetRows(); ++row)
            for (int column = 0; column < fill.GetColumns(); ++column)
                nodes.append(FillJson::WriteColour(*fill.GetNodeColour(column, row)));
        m_out["nodes"] = nodes;
    }
    void Visit(const CFillVector& fill) override
    {
        WriteTiling(fill);
        if (fill.GetMetaInstance())
            m_out["drawing"] = WriteDrawing(*fill.GetMetaInstance());
        m_out["alreadyScaled"] = fill.IsAlreadyScaled();
        m_out["offset1"] = WritePoint(fill.GetAdditionalOffset().x, fill.GetAdditionalOffset().y);
        m_out["offset2"] = WritePoint(fill.GetAdditionalOffset2().x, fill.GetAdditionalOffset2().y);
        m_out["rotation1"] = fill.GetAdditionalRotation();
        m_out["rotation2"] = fill.GetAdditionalRotation2();
        m_out["flipped"] = QJsonArray{fill.HFlipped(), fill.VFlipped()};
        m_out["independent"] = fill.ScaleRotateIndependentOfObject();
        m_out["objectTransform"] = WriteTransform(fill.GetObjectTransform());
        m_out["fitTransform"] = WriteTransform(fill.GetTransform());
        const CRect& box = fill.GetObjectBox();
        m_out["objectBox"] = QJsonArray{box.left, box.top, box.right, box.bottom};
    }

private:
    void WriteTiling(const CFillBitmap& fill)
    {
        m_out["invertedTiling"] = fill.WantInvertedTiling();
        m_out["recolour"] = fill.GetGradientRecolour();
    }

    QJsonObject& m_out;
};

class KindReader : public FillVisitor {
public:
    KindReader(const QJsonObject& in, int depth, FillJson::Pictures* pictures)
        : m_in(in), m_depth(depth), m_pictures(pictures)
    {
    }

    void Visit(CFillNone&) override {}
    void Visit(CFillSolid& fill) override { fill.SetColour(*FillJson::ReadColour(m_in.value("colour"))); }
    void Visit(CFillLinear&) override {}
    void Visit(CFillRadial&) override {}
    void Visit(CFillEllipse&) override {}
    void Visit(CFillConical&) override {}
    void Visit(CFillSquare&) override {}
    void Visit(CFillThreeColour&) override {}
    void Visit(CFillFourColour&) override {}
    void Visit(CFillFractal& fill) override
    {
        fill.SetGrain(Int(m_in, "grain", 0, 100));
        fill.SetResolution(Int(m_in, "resolution", CFillFractal::MinResolution, CFillFractal::MaxResolution));
        fill.SetSeed(static_cast<unsigned>(Number(m_in, "seed", 0, 4294967295.0)));
        fill.SetTileInverted(Bool(m_in, "tileInverted"));
    }
    void Visit(CFillBitmap& fill) override
    {
        ReadTiling(fill);
        if (m_in.contains("bitmap"))
            fill.SetBitmap(m_pictures ? m_pictures->Read(String(m_in, "bitmap")) : ReadBitmap(String(m_in, "bitmap")));
    }
    void Visit(CFillDiscreteMesh& fill) override
    {
        const int columns = Int(m_in, "columns", CFillDiscreteMesh::MinSide, CFillDiscreteMesh::MaxSide);
        const int rows = Int(m_in, "rows", CFillDiscreteMesh::MinSide, CFillDiscreteMesh::MaxSide);
        fill.SetGrid(columns, rows, CRect());
        const QJsonArray nodes = Array(m_in, "nodes");
        if (nodes.size() != columns * rows)
            throw FormatError(
                FormatError::tr("\"nodes\" should hold a colour for each of the %1 nodes").arg(columns * rows));
        for (int i = 0; i < columns * rows; ++i)
            fill.SetNodeColour(i % columns, i / columns, *FillJson::ReadColour(nodes[i]));
    }
    void Visit(CFillVector& fill) override
    {
        ReadTiling(fill);
        if (m_in.contains("drawing"))
            fill.SetMetaInstance(ReadDrawing(Object(m_in, "drawing"), m_depth, m_pictures));
        fill.SetRawBox(fill.GetRawBox(), Bool(m_in, "alreadyScaled"));
        const CPoint offset1 = ReadPoint(m_in.value("offset1"), "\"offset1\"").Round();
        const CPoint offset2 = ReadPoint(m_in.value("offset2"), "\"offset2\"").Round();
        fill.SetAdditionalOffsetsX1Y2(CPoint(-offset2.x, -offset1.y));
        fill.SetAdditionalOffsetsX2Y1(CPoint(-offset1.x, -offset2.y));
        fill.SetAdditionalRotation(Number(m_in, "rotation1", -360000, 360000));
        fill.SetAdditionalRotation2(Number(m_in, "rotation2", -360000, 360000));
        const QJsonArray flipped = Array(m_in, "flipped");
        fill.SetFlipped(flipped.at(0).toBool(), flipped.at(1).toBool());
        // The fill keeps the inverse of the object transform it was made independent of.
        const K2DLtGeneral kept = ReadTransform(m_in, "objectTransform");
        fill.SetScaleRotateIndependentOfObject(Bool(m_in, "independent"),
                                               kept.HasInverse() ? kept.GetInverse() : K2DLtGeneral());
        const QJsonArray box = Array(m_in, "objectBox");
        if (box.size() != 4)
            throw FormatError(FormatError::tr("\"objectBox\" should be four numbers"));
        std::array<int, 4> side{};
        for (int i = 0; i < 4; ++i)
            side[i] = static_cast<int>(Number(box[i], "\"objectBox\"", -kLimit, kLimit));
        fill.UpdateBBox(CRect(side[0], side[1], side[2], side[3]), ReadTransform(m_in, "fitTransform"));
    }

private:
    void ReadTiling(CFillBitmap& fill)
    {
        fill.SetWantInvertedTiling(Bool(m_in, "invertedTiling"));
        fill.SetGradientRecolour(Bool(m_in, "recolour"));
    }

    const QJsonObject& m_in;
    int m_depth;
    FillJson::Pictures* m_pictures;
};

KestoKernel::RefPtr<CFill> ReadFill(const QJsonValue& value, int depth, FillJson::Pictures* pictures)
{
    if (depth > kMaxNesting)
        throw FormatError(FormatError::tr("fills are nested more than %1 deep").arg(kMaxNesting));
    const QJsonObject in = Object(value, FormatError::tr("a fill"));
    const int type = Int(in, "type", 0, 1000);
    const bool transparency = Bool(in, "transparency");
    const CRuntimeClass* kind =
        transparency ? CTransparency::GetRuntimeClassFromType(type) : CFill::GetRuntimeClassFromType(type);
    KestoKernel::RefPtr<CFill> fill = CFill::CreateFromClass(kind);
    if (!fill)
        throw FormatError((transparency ? FormatError::tr("there is no transparency of type %1")
                                        : FormatError::tr("there is no fill of type %1"))
                              .arg(type));
    fill->SetAlpha(Int(in, "alpha", 0, 255));
    fill->SetBlendMode(static_cast<BlendMode>(Int(in, "blend", 0, static_cast<int>(BlendMode::Difference))));
    fill->SetOverprint(Bool(in, "overprint"));
    KindReader reader(in, depth, pictures);
    fill->Accept(reader);
    // After the kind's own attributes: a mesh's grid decides how many control points it has.
    std::vector<K2DDblPoint> controls;
    for (const QJsonValue& point : Array(in, "controls"))
        controls.push_back(ReadPoint(point, FormatError::tr("a control point")));
    if (!fill->SetControlPoints(controls))
        throw FormatError(FormatError::tr("this kind of fill has %1 control points, not %2")
                              .arg(fill->GetControlCount())
                              .arg(controls.size()));
    if (auto* withStops = dynamic_cast<CFillWithStops*>(fill.get())) {
        const KestoGDI::ColourIntPairs stops = ReadStops(Array(in, "stops"));
        if (!withStops->SetColourIntPairs(stops)) {
            const QString wanted =
                withStops->GetMaxStops() < 0
                    ? FormatError::tr("at least %1").arg(withStops->GetMinStops())
                    : FormatError::tr("%1 to %2").arg(withStops->GetMinStops()).arg(withStops->GetMaxStops());
            throw FormatError(
                FormatError::tr("this kind of fill takes %1 stops, not %2").arg(wanted).arg(stops.GetSize()));
        }
    }
    return fill;
}

} // namespace

QJsonArray FillJson::WritePath(const KestoRaster::Path& path)
{
    using Verb = KestoRaster::Path::Verb;
    QJsonArray out;
    auto point = path.Points().begin();
    const auto take = [&](QJsonArray& segment, int count) {
        for (int i = 0; i < count; ++i, ++point)
            segment << point->x << point->y;
    };
    for (const Verb verb : path.Verbs()) {
        QJsonArray segment;
        switch (verb) {
        case Verb::Move:
            segment << "M";
            take(segment, 1);
            break;
        case Verb::Line:
            segment << "L";
            take(segment, 1);
            break;
        case Verb::Cubic:
            segment << "C";
            take(segment, 3);
            break;
        case Verb::Close: segment << "Z"; break;
        }
        out.append(segment);
    }
    return out;
}

KestoRaster::Path FillJson::ReadPath(const QJsonArray& in)
{
    KestoRaster::Path path;
    for (const QJsonValue& value : in) {
        const QJsonArray segment = value.toArray();
        const QString verb = segment.isEmpty() ? QString() : segment[0].toString();
        const qsizetype numbers = verb == "M" || verb == "L" ? 2 : verb == "C" ? 6 : verb == "Z" ? 0 : -1;
        if (numbers < 0 || segment.size() != numbers + 1)
            throw FormatError(FormatError::tr("a path segment should be [\"M\", x, y], [\"L\", x, y], "
                                              "[\"C\", x1, y1, x2, y2, x, y] or [\"Z\"]"));
        std::array<KestoRaster::Point, 3> p{};
        for (qsizetype i = 0; i < numbers; ++i)
            (i % 2 ? p[i / 2].y : p[i / 2].x) =
                Number(segment[i + 1], FormatError::tr("a path point"), -kLimit, kLimit);
        if (verb == "M")
            path.MoveTo(p[0]);
        else if (verb == "L")
            path.LineTo(p[0]);
        else if (verb == "C")
            path.CubicTo(p[0], p[1], p[2]);
        else
            path.Close();
    }
    return path;
}

QJsonObject FillJson::Write(const CFill& fill)
{
    QJsonObject out{{"type", fill.GetFillType()},
                    {"transparency", fill.IsTransparency()},
                    {"alpha", fill.GetAlpha()},
                    {"blend", static_cast<int>(fill.GetBlendMode())},
                    {"overprint", fill.GetOverprint()}};
    QJsonArray controls;
    for (int i = 0; i < fill.GetControlCount(); ++i)
        controls.append(WritePoint(fill.GetControlPoint(i).x, fill.GetControlPoint(i).y));
    out["controls"] = controls;
    if (const auto* withStops = dynamic_cast<const CFillWithStops*>(&fill))
        out["stops"] = WriteStops(withStops->GetColourIntPairs());
    KindWriter writer(out);
    fill.Accept(writer);
    return out;
}

KestoKernel::RefPtr<CFill> FillJson::Read(const QJsonValue& value, Pictures* pictures)
{
    return ReadFill(value, 0, pictures);
}

RefPtr<const CLtBitmap> FillJson::Pictures::Read(const QString& base64)
{
    // Same text, same picture: decoded once and shared.
    if (const auto it = m_read.find(base64); it != m_read.end())
        return it->second;
    RefPtr<const CLtBitmap> bitmap = ReadBitmap(base64);
    m_pixels += static_cast<qint64>(bitmap->GetWidth()) * bitmap->GetHeight();
    if (m_pixels > m_maxPixels)
        throw FormatError(FormatError::tr("its pictures hold more than %1 pixels").arg(m_maxPixels));
    return m_read[base64] = bitmap;
}

QJsonObject FillJson::WriteColour(const CColour& colour)
{
    QJsonObject out{{"alpha", colour.GetAlpha()}, {"tint", colour.GetTint()}};
    if (const auto* grey = dynamic_cast<const CMonoColour*>(&colour)) {
        out["level"] = grey->GetLevel();
        return out;
    }
    const auto* named = dynamic_cast<const CRGBColour*>(&colour);
    // A colour of another kind is kept as the RGB colour it shows, untinted.
    if (!named)
        out["tint"] = 0;
    CRGBColour untinted = named ? *named : CRGBColour(colour.GetRGB());
    untinted.SetTint(0);
    const COLORREF base = untinted.GetRGB();
    out["rgb"] = QStringLiteral("#%1%2%3")
                     .arg(KestoPlatform::GetRValue(base), 2, 16, QChar('0'))
                     .arg(KestoPlatform::GetGValue(base), 2, 16, QChar('0'))
                     .arg(KestoPlatform::GetBValue(base), 2, 16, QChar('0'));
    if (named && !named->GetName().empty())
        out["name"] = QString::fromStdWString(named->GetName());
    return out;
}

std::unique_ptr<CColour> FillJson::ReadColour(const QJsonValue& value)
{
    const QJsonObject in = Object(value, FormatError::tr("a colour"));
    const auto tint = static_cast<short>(Int(in, "tint", -100, 100));
    const auto alpha = static_cast<short>(Int(in, "alpha", 0, 255));
    if (in.contains("level")) {
        auto grey = std::make_unique<CMonoColour>(Int(in, "level", 0, 255), tint);
        grey->SetAlpha(alpha);
        return grey;
    }
    const QString rgb = String(in, "rgb");
    bool ok = false;
    const unsigned value24 = rgb.mid(1).toUInt(&ok, 16);
    if (!ok || rgb.size() != 7 || rgb[0] != '#')
        throw FormatError(FormatError::tr("\"rgb\" should be a colour as #rrggbb"));
    const std::wstring name = in.value("name").toString().toStdWString();
    return std::make_unique<CRGBColour>(
        KestoPlatform::RGB((value24 >> 16) & 0xFF, (value24 >> 8) & 0xFF, value24 & 0xFF),
        name.empty() ? nullptr : name.c_str(), tint, alpha);
}

} // namespace KestoDraw
