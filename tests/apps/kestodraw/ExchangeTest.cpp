// kestodraw's exports as other programs see them, and SVG files brought in: SVG and PDF shown by
// real renderers against the PNG export, shape by shape; SVG imported and written again.
#include "DocumentFile.h"
#include "KestoDrawWindow.h"

#include "kestotool/filltool/ToolSession.h"
#include "kestotool/gdi/FillKinds.h"
#include "kestotool/gdi/FillType.h"

#include <QFile>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <numeric>
#include <string_view>

using KestoDrawTesting::KestoDrawWindow;
using KestoDrawTesting::kSample;

namespace {

// How one picture of a shape differs from ours: the mean and the 99th percentile of the
// channel differences over the shape's pixels that lie more than 2 px inside its outline.
struct Likeness {
    double mean = 0;
    int p99 = 0;
};

std::vector<Likeness> ShapeByShape(const QImage& ours, const QImage& theirs, const KestoDraw::Document& document)
{
    const double scale = ours.width() / static_cast<double>(document.width);
    std::vector<Likeness> likeness;
    for (const KestoDraw::Shape& shape : document.shapes) {
        QImage inside(ours.size(), QImage::Format_Grayscale8);
        inside.fill(0);
        {
            QPainter painter(&inside);
            painter.scale(scale, scale);
            painter.fillPath(shape.Outline(), Qt::white);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(QPen(Qt::black, 5 / scale));
            painter.drawPath(shape.Outline());
        }
        std::vector<int> differences;
        for (int y = 0; y < ours.height(); ++y)
            for (int x = 0; x < ours.width(); ++x)
                if (qGray(inside.pixel(x, y)) == 255)
                    for (const int shift : {0, 8, 16})
                        differences.push_back(std::abs(static_cast<int>(ours.pixel(x, y) >> shift & 0xFF) -
                                                       static_cast<int>(theirs.pixel(x, y) >> shift & 0xFF)));
        std::sort(differences.begin(), differences.end());
        likeness.push_back({std::accumulate(differences.begin(), differences.end(), 0.0) /
                                static_cast<double>(std::max<std::size_t>(differences.size(), 1)),
                            differences.empty() ? 0 : differences[differences.size() * 99 / 100]});
    }
    return likeness;
}

// The sample (a shape of every kind of fill), and the sample with a transparency of every kind
// on its shapes, exported as SVG and PDF and shown by real renderers, look shape by shape as
// the program's own PNG export, away from the outlines. With KESTO_INTEROP set a browser
// (headless Chromium) shows the SVG too.
TEST_F(KestoDrawWindow, SvgAndPdfExportsShowInRealRenderersAsThePngExportDoes)
{
    // The sample's shapes, each seen through a transparency of the next kind in turn.
    KestoDraw::Document seeThrough = window->GetDocument();
    std::vector<const KestoGDI::FillKind*> transparencies;
    for (const KestoGDI::FillKind& kind : KestoGDI::FillKinds::All())
        if (kind.transparencyClass)
            transparencies.push_back(&kind);
    for (std::size_t i = 0; i < seeThrough.shapes.size(); ++i) {
        KestoDraw::Shape& shape = seeThrough.shapes[i];
        shape.transparency =
            KestoTool::ToolSession::Convert(nullptr, transparencies[i % transparencies.size()]->transparencyClass, shape.box);
    }
    const QString seeThroughPath = folder.filePath("see-through.kdraw");
    QString error;
    ASSERT_TRUE(KestoDraw::DocumentFile::Save(seeThrough, seeThroughPath, &error)) << error.toStdString();

    const bool browser = qEnvironmentVariableIsSet("KESTO_INTEROP");

    std::printf("%-12s %-28s %-24s %7s %4s\n", "renderer", "fill", "transparency", "mean", "p99");
    for (const QString& drawing : {kSample, seeThroughPath}) {
        ASSERT_TRUE(window->Open(drawing));
        const QString svg = folder.filePath("drawing.svg"), pdf = folder.filePath("drawing.pdf"),
                      png = folder.filePath("drawing.png");
        ASSERT_TRUE(window->ExportSvg(svg));
        ASSERT_TRUE(window->ExportPng(png));
        const QImage ours = QImage(png).convertToFormat(QImage::Format_RGB32);
        // A point of the page for each pixel of the PNG, shown at 72 dpi, and pictures as sharp
        // as the PNG, so that the pictures' pixels fall on the shown pixels.
        const double side = std::max(ours.width(), ours.height());
        ASSERT_TRUE(window->ExportPdf(pdf, {side / 72 * 25.4, 72}));
        const QString w = QString::number(ours.width()), h = QString::number(ours.height());
        const QString shown = folder.filePath("shown.png");
        struct Renderer {
            const char* name;
            QString command;
        };
        std::vector<Renderer> renderers{
            {"rsvg", QStringLiteral("rsvg-convert -w %1 -h %2 -o '%3' '%4'").arg(w, h, shown, svg)},
            {"pdftoppm", QStringLiteral("pdftoppm -png -singlefile -r 72 '%1' '%2'").arg(pdf, shown.chopped(4))},
            {"pdftocairo", QStringLiteral("pdftocairo -png -singlefile -r 72 '%1' '%2'").arg(pdf, shown.chopped(4))},
        };
        if (browser) {
            QFile page(folder.filePath("page.html"));
            ASSERT_TRUE(page.open(QIODevice::WriteOnly));
            page.write(QStringLiteral("<html><body style='margin:0'><img src='drawing.svg' width='%1' height='%2'>"
                                      "</body></html>")
                           .arg(w, h)
                           .toUtf8());
            page.close();
            renderers.push_back(
                {"chromium", QStringLiteral("chromium --headless --no-sandbox --disable-gpu --hide-scrollbars "
                                            "--force-device-scale-factor=1 --window-size=%1,%2 --screenshot='%3' "
                                            "'file://%4' >/dev/null 2>&1")
                                 .arg(w, h, shown, page.fileName())});
        }
        for (const Renderer& renderer : renderers) {
            QFile::remove(shown);
            ASSERT_EQ(std::system(renderer.command.toLocal8Bit().constData()), 0) << renderer.command.toStdString();
            const QImage theirs = QImage(shown).convertToFormat(QImage::Format_RGB32);
            ASSERT_EQ(theirs.size(), ours.size()) << renderer.name;
            const std::vector<Likeness> likeness = ShapeByShape(ours, theirs, window->GetDocument());
            for (std::size_t i = 0; i < likeness.size(); ++i) {
                const KestoDraw::Shape& shape = window->GetDocument().shapes[i];
                const QString fill = QString::fromWCharArray(shape.fill->GetTypeAsString());
                const QString through =
                    shape.transparency ? QString::fromWCharArray(shape.transparency->GetTypeAsString()) : "-";
                std::printf("%-12s %-28s %-24s %7.3f %4d\n", renderer.name, qPrintable(fill), qPrintable(through),
                            likeness[i].mean, likeness[i].p99);
                // pdftoppm smooths every picture it enlarges less than four times, even one
                // shown pixel for pixel: a bitmap's, a vector tile's or a plasma's sharp edges
                // blur there. pdftocairo, poppler's other rasteriser, shows them as they are.
                const auto picture = [](const KestoGDI::CFill* f) {
                    return f && (f->GetFillType() == KestoGDI::FillType::Bitmap ||
                                 f->GetFillType() == KestoGDI::FillType::Vector ||
                                 f->GetFillType() == KestoGDI::FillType::Plasma);
                };
                if (std::string_view(renderer.name) == "pdftoppm" &&
                    (picture(shape.fill.get()) || picture(shape.transparency.get())))
                    continue;
                EXPECT_LE(likeness[i].mean, 2.0) << renderer.name << " " << i;
                EXPECT_LE(likeness[i].p99, 8) << renderer.name << " " << i;
            }
        }
    }
}

// The sample's shapes of the kinds SVG has a paint for, exported as SVG and imported, make a
// drawing whose export is the same file. The whole sample imports those shapes and names what
// it left out; a damaged file is refused and the drawing kept.
TEST_F(KestoDrawWindow, ImportedSvgExportsAgainByteForByte)
{
    using KestoGDI::FillType;
    const auto native = [](const KestoGDI::CFill* f) {
        if (!f)
            return true;
        const int type = f->GetFillType();
        return type == FillType::Solid || type == FillType::Linear || type == FillType::Radial ||
               type == FillType::Elliptical || type == FillType::Square;
    };
    KestoDraw::Document drawing = window->GetDocument();
    std::erase_if(drawing.shapes, [&](const KestoDraw::Shape& s) {
        return !native(s.fill.get()) || !native(s.transparency.get());
    });
    ASSERT_GE(drawing.shapes.size(), 6u);
    const QString path = folder.filePath("native.kdraw");
    QString error;
    ASSERT_TRUE(KestoDraw::DocumentFile::Save(drawing, path, &error)) << error.toStdString();
    ASSERT_TRUE(window->Open(path));
    const QString first = folder.filePath("first.svg"), second = folder.filePath("second.svg");
    ASSERT_TRUE(window->ExportSvg(first));
    ASSERT_TRUE(window->ImportSvg(first));
    ASSERT_EQ(window->GetDocument().shapes.size(), drawing.shapes.size());
    for (std::size_t i = 0; i < drawing.shapes.size(); ++i) {
        const KestoDraw::Shape& back = window->GetDocument().shapes[i];
        EXPECT_EQ(back.fill->GetFillType(), drawing.shapes[i].fill->GetFillType()) << i;
        EXPECT_EQ(back.transparency != nullptr, drawing.shapes[i].transparency != nullptr) << i;
    }
    EXPECT_EQ(errors, QStringList{"first.svg holds what kestodraw does not draw, left out: stroke."});
    ASSERT_TRUE(window->ExportSvg(second));
    QFile a(first), b(second);
    ASSERT_TRUE(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly));
    EXPECT_EQ(a.readAll(), b.readAll());
    // An imported drawing saves and reopens as it is.
    const QString saved = folder.filePath("imported.kdraw");
    ASSERT_TRUE(window->SaveAs(saved));
    ASSERT_TRUE(window->Open(saved));
    ASSERT_TRUE(window->ExportSvg(second));
    b.close();
    ASSERT_TRUE(b.open(QIODevice::ReadOnly));
    a.seek(0);
    EXPECT_EQ(a.readAll(), b.readAll());

    errors.clear();
    ASSERT_TRUE(window->Open(kSample));
    ASSERT_TRUE(window->ExportSvg(first));
    ASSERT_TRUE(window->ImportSvg(first));
    EXPECT_EQ(window->GetDocument().shapes.size(), drawing.shapes.size());
    ASSERT_EQ(errors.size(), 1);
    EXPECT_TRUE(errors[0].contains("<image>")) << errors[0].toStdString();

    QFile damaged(folder.filePath("damaged.svg"));
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write(QByteArray("<svg xmlns='http://www.w3.org/2000/svg'><rect width='5'"));
    damaged.close();
    errors.clear();
    EXPECT_FALSE(window->ImportSvg(damaged.fileName()));
    EXPECT_EQ(window->GetDocument().shapes.size(), drawing.shapes.size());
    ASSERT_EQ(errors.size(), 1);
    EXPECT_TRUE(errors[0].startsWith("damaged.svg could not be imported: the file is not well-formed XML"))
        << errors[0].toStdString();
}

} // namespace
