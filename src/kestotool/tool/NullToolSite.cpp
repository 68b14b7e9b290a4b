#include "kestotool/tool/NullToolSite.h"

#include "kestotool/kernel/VerifyReporter.h"

#include <atomic>

namespace KestoTool {

namespace {

// Lines of the null site's reports; host logs may key on them.
constexpr int kLineFillTypeIgnored = 1;
constexpr int kLineTransparencyTypeIgnored = 2;

std::atomic<bool> g_fillTypeReported = false;
std::atomic<bool> g_transparencyTypeReported = false;

} // namespace

void NullToolSite::SetFillType(const KestoPlatform::CRuntimeClass*)
{
    if (!g_fillTypeReported.exchange(true))
        KestoKernel::VerifyFailed("KestoTool", "NullToolSite", kLineFillTypeIgnored,
                                  "a kind chosen in the fill-type combo reached NullToolSite::SetFillType, which "
                                  "ignores it: override SetFillType to give the selection a fill of that kind");
}

void NullToolSite::SetTransparencyType(const KestoPlatform::CRuntimeClass*)
{
    if (!g_transparencyTypeReported.exchange(true))
        KestoKernel::VerifyFailed("KestoTool", "NullToolSite", kLineTransparencyTypeIgnored,
                                  "a kind chosen in the transparency-type combo reached "
                                  "NullToolSite::SetTransparencyType, which ignores it: override SetTransparencyType "
                                  "to give the selection a transparency of that kind");
}

} // namespace KestoTool
