// Command routing with every choice from the input bytes: host IDs across the whole int range,
// commands, update requests and notifications of any code, with and without controls behind
// them, on a random tool and fill. Any broken fill aborts; the sanitizers catch the rest.
#include "support/GestureSession.h"

#include "kestotool/tool/ToolIdMap.h"

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const bool initialised = (KestoTool::Init(40000, 40100), true);
    (void)initialised;
    KestoTest::ByteChoices choices(data, size);
    const std::string failure = KestoTest::GestureSession(choices, "input").Play(1 << 20, true);
    if (!failure.empty()) {
        std::fprintf(stderr, "%s\n", failure.c_str());
        std::abort();
    }
    return 0;
}
