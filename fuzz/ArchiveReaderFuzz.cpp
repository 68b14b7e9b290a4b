// Feeds arbitrary bytes to the image-archive reader, both as an archive and as a bare PNG.
#include "kestotool/gdi/WadManager.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    KestoGDI::WadManager::LoadFromMemory(data, size, L"Icons\\96\\Edit Fill.png");
    KestoGDI::WadManager::DecodePng(data, size);
    return 0;
}
