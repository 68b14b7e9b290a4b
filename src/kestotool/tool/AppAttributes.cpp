#include "kestotool/tool/AppAttributes.h"

#include <atomic>

namespace KestoTool {
namespace {

std::atomic<AppAttributes*> g_holder{nullptr};

// Puts p (already referenced) into the holder and releases what was there.
void ExchangeIn(AppAttributes* p)
{
    if (AppAttributes* previous = g_holder.exchange(p))
        previous->Release();
}

} // namespace

AppAttributes* AppAttributes::Get()
{
    if (AppAttributes* installed = g_holder.load())
        return installed;
    auto* fresh = new AppAttributes;
    fresh->AddRef();
    ExchangeIn(fresh);
    return g_holder.load();
}

void AppAttributes::Set(AppAttributes* p)
{
    if (p)
        p->AddRef();
    ExchangeIn(p);
}

} // namespace KestoTool
