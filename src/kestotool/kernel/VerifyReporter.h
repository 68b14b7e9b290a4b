#pragma once

#include "kestotool/platform/Export.h"

#include <functional>
#include <string>

namespace KestoKernel {

// A broken precondition: the operation reports it here and returns its empty result.
struct VerifyReport {
    std::string message; // always "Verify failed"
    std::string module;  // the module label, e.g. "KestoTool"
    std::string file;    // the source file name as the behaviour names it
    int line = 0;
    std::string hint; // what to fix, in plain words; empty where the report speaks for itself
};

using VerifyHandler = std::function<void(const VerifyReport&)>;

// Reports "Verify failed" for the given module, source file and line to the installed handler,
// with a hint for whoever reads the log.
KESTO_API void VerifyFailed(const char* module, const char* file, int line, const std::string& hint = {});

// Installs a handler (an empty one restores the default) and answers the one it replaces.
// The default writes one line to stderr: "module (file:line) Verify failed: hint".
KESTO_API VerifyHandler SetVerifyHandler(VerifyHandler handler);

// The report as a host's assertion box shows it: "module (file:line)\nVerify failed".
KESTO_API std::string FormatVerifyReport(const VerifyReport& report);

// Installs a handler for its lifetime, then puts the previous one back.
class KESTO_API ScopedVerifyHandler {
public:
    explicit ScopedVerifyHandler(VerifyHandler handler) : m_previous(SetVerifyHandler(std::move(handler))) {}
    ~ScopedVerifyHandler() { SetVerifyHandler(std::move(m_previous)); }
    ScopedVerifyHandler(const ScopedVerifyHandler&) = delete;
    ScopedVerifyHandler& operator=(const ScopedVerifyHandler&) = delete;

private:
    VerifyHandler m_previous;
};

} // namespace KestoKernel
