#include "error/mError.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <new>
#include <stdexcept>

#include "support/AppFixture.h"
#include "support/FailureMatchers.h"

namespace {

void Origin() try { mError::RaiseError(5, "broken"); } catch (...) {
    mError::PassOn("Module.Origin");
}

void Middle() try { Origin(); } catch (...) {
    mError::PassOn("Other.Middle");
}

TEST(mError, TrailListsEveryProcedureFromTheTopDown) {
    std::optional<Failure> failure = FailureOf(Middle);
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Source(), "Other.Middle\r\nModule.Origin\r\nPavonel");
    EXPECT_EQ(failure->Number(), static_cast<int32_t>(0x80040005u));
    EXPECT_EQ(failure->Description(), "broken");
}

TEST(mError, WithTrailPassesOnAndReturnsOtherwise) {
    EXPECT_EQ(mError::WithTrail("M.Ok", [] { return 42; }), 42);
    std::optional<Failure> failure = FailureOf([] { mError::WithTrail("M.Fails", [] { Middle(); }); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(TrailOf(*failure), (std::vector<std::string>{"M.Fails", "Other.Middle", "Module.Origin"}));
}

struct Conversion {
    const char* name;
    std::function<void()> raise;
    int32_t number;
};

class StandardExceptions : public ::testing::TestWithParam<Conversion> {};

TEST_P(StandardExceptions, BecomeRunTimeFailures) {
    std::optional<Failure> failure = FailureOf([] {
        try {
            GetParam().raise();
        } catch (...) {
            mError::PassOn("M.P");
        }
    });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Number(), GetParam().number);
    EXPECT_EQ(failure->Source(), "M.P\r\nPavonel");
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, StandardExceptions,
    ::testing::Values(Conversion{"OutOfMemory", [] { throw std::bad_alloc(); }, mError::kOutOfMemory},
                      Conversion{"Overflow", [] { throw std::overflow_error("x"); }, mError::kOverflow},
                      Conversion{"OutOfRange", [] { (void)std::stoi("99999999999999"); }, mError::kOverflow},
                      Conversion{"TypeMismatch", [] { (void)std::stoi("abc"); }, mError::kTypeMismatch},
                      Conversion{"FileNotFound",
                                 [] { (void)std::filesystem::file_size("/nonexistent/pavonel"); },
                                 mError::kFileNotFound},
                      Conversion{"AccessError",
                                 [] {
                                     throw std::filesystem::filesystem_error(
                                         "x", std::make_error_code(std::errc::permission_denied));
                                 },
                                 mError::kPathFileAccessError},
                      Conversion{"Other", [] { throw std::logic_error("x"); }, mError::kInternalError},
                      Conversion{"NotAnException", [] { throw 42; }, mError::kInternalError}),
    [](const ::testing::TestParamInfo<Conversion>& info) { return std::string(info.param.name); });

class ShowErrorTest : public AppFixture {};

TEST_F(ShowErrorTest, EntryPointShowsTheReportOnce) {
    try {
        Middle();
    } catch (...) {
        mError::ShowError("frmMain.cmdStart_Click");
    }
    ASSERT_EQ(ui.reports.size(), 1u);
    EXPECT_EQ(ui.reports[0].source, "frmMain.cmdStart_Click\r\nOther.Middle\r\nModule.Origin\r\nPavonel");
    EXPECT_EQ(ui.reports[0].description, "broken");
}

TEST_F(ShowErrorTest, NumberZeroShowsNothing) {
    try {
        throw Failure(0, "");
    } catch (...) {
        mError::ShowError("M.P");
    }
    EXPECT_TRUE(ui.reports.empty());
}

// A report window that fails itself must not open report windows without end.
class FailingReportWindow : public FakeUserInterface {
public:
    void ShowErrorReport(const ErrorReport& report) override {
        reports.push_back(report);
        try {
            throw Failure(9, "inside the report window");
        } catch (...) {
            mError::ShowError("frmError.Form_Load");
        }
    }
};

TEST_F(ShowErrorTest, FailureInsideTheReportWindowIsNotReportedAgain) {
    FailingReportWindow window;
    InstallUserInterface(&window);
    try {
        Middle();
    } catch (...) {
        mError::ShowError("M.P");
    }
    EXPECT_EQ(window.reports.size(), 1u);
    InstallUserInterface(&ui);
}

}  // namespace
