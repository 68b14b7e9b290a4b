#include "kestotool/raster/Isa.h"

#include "kestotool/raster/Kernels_p.h"

#include <cstdlib>
#include <cstring>
#include <initializer_list>

namespace KestoRaster {

namespace {

Isa Chosen()
{
    const Isa best = Kernels::BestIsa();
    const char* asked = std::getenv("KESTO_RASTER_ISA");
    if (!asked)
        return best;
    for (const Isa isa : {Isa::Scalar, Isa::Avx2, Isa::Avx512}) {
        if (std::strcmp(asked, IsaName(isa)) == 0 && IsaAvailable(isa))
            return isa;
    }
    return best;
}

Isa& Active()
{
    static Isa active = Chosen();
    return active;
}

} // namespace

bool IsaAvailable(Isa isa)
{
    return static_cast<int>(isa) <= static_cast<int>(Kernels::BestIsa());
}

Isa ActiveIsa()
{
    return Active();
}

Isa SetActiveIsa(Isa isa)
{
    if (IsaAvailable(isa))
        Active() = isa;
    return Active();
}

const char* IsaName(Isa isa)
{
    switch (isa) {
    case Isa::Avx2: return "avx2";
    case Isa::Avx512: return "avx512";
    case Isa::Scalar: break;
    }
    return "scalar";
}

namespace Kernels {

const KernelSet& Active()
{
    return ForIsa(ActiveIsa());
}

} // namespace Kernels

} // namespace KestoRaster
