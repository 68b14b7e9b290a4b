// Gesture sessions whose every choice comes from the input bytes: the tool, the fill, the host's
// scale and object box, each drag, drop, key, command and edit. Any broken fill, changed
// recorded fill or failed undo aborts, and the sanitizers catch the rest.
#include "support/GestureSession.h"

#include "kestotool/tool/ToolIdMap.h"

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const bool initialised = (KestoTool::Init(40000, 40100), true);
    (void)initialised;
    KestoTest::ByteChoices choices(data, size);
    const std::string failure = KestoTest::GestureSession(choices, "input").Play(1 << 20);
    if (!failure.empty()) {
        std::fprintf(stderr, "%s\n", failure.c_str());
        std::abort();
    }
    return 0;
}
