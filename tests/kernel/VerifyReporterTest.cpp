#include "kestotool/kernel/VerifyReporter.h"

#include <gtest/gtest.h>

#include <vector>

TEST(VerifyReporter, HandlerReceivesMessageModuleFileAndLine)
{
    std::vector<KestoKernel::VerifyReport> reports;
    {
        KestoKernel::ScopedVerifyHandler handler([&](const KestoKernel::VerifyReport& r) { reports.push_back(r); });
        KestoKernel::VerifyFailed("KestoTool", "FillToolRadial", 443);
    }
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].message, "Verify failed");
    EXPECT_EQ(reports[0].module, "KestoTool");
    EXPECT_EQ(reports[0].file, "FillToolRadial");
    EXPECT_EQ(reports[0].line, 443);
    EXPECT_EQ(KestoKernel::FormatVerifyReport(reports[0]), "KestoTool (FillToolRadial:443)\nVerify failed");
}

TEST(VerifyReporter, DefaultHandlerWritesOneLineToStderr)
{
    testing::internal::CaptureStderr();
    KestoKernel::VerifyFailed("KestoGDI", "CFill", 12);
    KestoKernel::VerifyFailed("KestoTool", "FillTool", 3, "pass the host's site");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "KestoGDI (CFill:12) Verify failed\nKestoTool (FillTool:3) Verify failed: pass the host's site\n");
}
