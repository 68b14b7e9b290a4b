#include "kestotool/kernel/VerifyReporter.h"

#include <cstdio>

namespace KestoKernel {
namespace {

void WriteToStderr(const VerifyReport& report)
{
    std::fprintf(stderr, "%s (%s:%d) %s%s%s\n", report.module.c_str(), report.file.c_str(), report.line,
                 report.message.c_str(), report.hint.empty() ? "" : ": ", report.hint.c_str());
}

VerifyHandler& Installed()
{
    static VerifyHandler handler = WriteToStderr;
    return handler;
}

} // namespace

void VerifyFailed(const char* module, const char* file, int line, const std::string& hint)
{
    Installed()(VerifyReport{"Verify failed", module ? module : "", file ? file : "", line, hint});
}

VerifyHandler SetVerifyHandler(VerifyHandler handler)
{
    VerifyHandler previous = std::move(Installed());
    Installed() = handler ? std::move(handler) : VerifyHandler(WriteToStderr);
    return previous;
}

std::string FormatVerifyReport(const VerifyReport& report)
{
    return report.module + " (" + report.file + ":" + std::to_string(report.line) + ")\n" + report.message;
}

} // namespace KestoKernel
