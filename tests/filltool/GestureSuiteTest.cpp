// Randomized gesture sessions (support/GestureSession) on every tool the factory makes. After
// every commit the fill must still be a valid fill of its kind, no fill handed over may change,
// and each session is undone to its start and redone to its end through the host's history.
//
// Each session is replayable: a failure names its seed and step. KESTO_GESTURE_SEED=<seed> runs
// that one session; KESTO_GESTURE_SESSIONS and KESTO_GESTURE_STEPS make a longer soak.
#include "support/GestureSession.h"

#include "kestotool/tool/ToolIdMap.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

long EnvOr(const char* name, long fallback)
{
    const char* v = std::getenv(name);
    return v ? std::strtol(v, nullptr, 10) : fallback;
}

} // namespace

TEST(GestureSuite, RandomSessionsKeepEveryFillValidAndUndoRestoresEachStep)
{
    KestoTool::Init(40000, 40100);
    const long only = EnvOr("KESTO_GESTURE_SEED", -1);
    const long sessions = only >= 0 ? 1 : EnvOr("KESTO_GESTURE_SESSIONS", 40);
    const int steps = static_cast<int>(EnvOr("KESTO_GESTURE_STEPS", 150));
    for (long i = 0; i < sessions; ++i) {
        const auto seed = only >= 0 ? static_cast<std::uint64_t>(only) : 1000 + static_cast<std::uint64_t>(i);
        KestoTest::RandomChoices choices(seed);
        const std::string failure = KestoTest::GestureSession(choices, "seed " + std::to_string(seed)).Play(steps);
        EXPECT_EQ(failure, "") << "replay with KESTO_GESTURE_SEED=" << seed;
    }
}
