#include "app/ErrorReport.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "Version.h"
#include "app/Application.h"
#include "app/PublicObjects.h"
#include "support/AppFixture.h"

namespace {

class ErrorReportTest : public AppFixture {
protected:
    std::string Expected(const std::string& number, const std::string& ini, const std::string& game) const {
        return std::string("Pavonel-Version: ") + Version::kText + "\r\n\r\nDescription:\r\nbroken\r\n\r\n" +
               "Err.-Number: " + number + "\r\n\r\nErr.-Source: \r\nM.P\r\nPavonel\r\n\r\n" +
               "App-Path: " + dir.Path().string() +
               "\r\nCur.Path: " + std::filesystem::current_path().string() + "\r\nIni.Path: " + ini +
               "\r\n\r\nTarvolin-Version: " + game + "\r\nTarvolin-Path: " + game;
    }

    static Failure Sample(int32_t number) {
        Failure failure(number, "broken");
        failure.PrependSource("M.P");
        return failure;
    }
};

TEST_F(ErrorReportTest, ObjectErrorShowsBothNumbers) {
    ErrorReport report = ComposeErrorReport(Sample(static_cast<int32_t>(0x80040005u)));
    EXPECT_EQ(report.text,
              Expected("-2147221499 (5)", dir.File("Pavonel.ini"), "(g_cApp.ActiveProfile not defined)"));
    EXPECT_EQ(report.number, static_cast<int32_t>(0x80040005u));
    EXPECT_EQ(report.description, "broken");
    EXPECT_EQ(report.source, "M.P\r\nPavonel");
}

TEST_F(ErrorReportTest, BeforeTheApplicationExists) {
    g_cApp.reset();
    ErrorReport report = ComposeErrorReport(Sample(13));
    EXPECT_EQ(report.text, Expected("13 (13)", "(g_cApp not defined)", "(g_cApp not defined)"));
}

TEST(PlainErrorNumber, ClearsTheObjectErrorBits) {
    EXPECT_EQ(PlainErrorNumber(static_cast<int32_t>(0x80044E27u)), 20007);
    EXPECT_EQ(PlainErrorNumber(53), 53);
    EXPECT_EQ(PlainErrorNumber(-1), 0x7FFBFFFF);
}

}  // namespace
