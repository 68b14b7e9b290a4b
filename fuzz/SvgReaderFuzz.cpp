// Reads the input as an SVG file, then writes what was read and reads that again: the reader
// must refuse or read any bytes within its limits, and what the writer makes of a drawing it
// read must read back whole.
#include "kestotool/exchange/SvgReader.h"
#include "kestotool/exchange/SvgWriter.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const KestoTool::SvgReader::Result read =
        KestoTool::SvgReader::Read(std::string_view(reinterpret_cast<const char*>(data), size));
    if (!read.drawing)
        return 0;
    KestoTool::SvgWriter writer(read.drawing->width, read.drawing->height);
    writer.SetRasterScale(0.05); // a fill the writer paints as a picture stays small
    for (const KestoTool::SvgReader::Shape& shape : read.drawing->shapes)
        writer.AddShape(shape.outline, *shape.fill, shape.transparency.get(), std::nullopt);
    const KestoTool::SvgReader::Result again = KestoTool::SvgReader::Read(writer.Document());
    if (!again.drawing || again.drawing->shapes.size() > read.drawing->shapes.size())
        std::abort();
    return 0;
}
