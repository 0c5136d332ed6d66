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

TEST(mError, StandardExceptionsBecomeRunTimeFailures) {
    const std::pair<std::function<void()>, int32_t> cases[] = {
        {[] { throw std::bad_alloc(); }, mError::kOutOfMemory},
        {[] { throw std::overflow_error("x"); }, mError::kOverflow},
        {[] { (void)std::stoi("99999999999999"); }, mError::kOverflow},
        {[] { (void)std::stoi("abc"); }, mError::kTypeMismatch},
        {[] { (void)std::filesystem::file_size("/nonexistent/pavonel"); }, mError::kFileNotFound},
        {[] {
             throw std::filesystem::filesystem_error("x", std::make_error_code(std::errc::permission_denied));
         },
         mError::kPathFileAccessError},
        {[] { throw std::logic_error("x"); }, mError::kInternalError},
        {[] { throw 42; }, mError::kInternalError}};
    for (const auto& [raise, number] : cases) {
        std::optional<Failure> failure = FailureOf([&raise] {
            try {
                raise();
            } catch (...) {
                mError::PassOn("M.P");
            }
        });
        ASSERT_TRUE(failure) << number;
        EXPECT_EQ(failure->Number(), number);
        EXPECT_EQ(failure->Source(), "M.P\r\nPavonel");
    }
}

class ShowErrorTest : public AppFixture {};

// The entry point shows the report once; a failure numbered 0 shows nothing.
TEST_F(ShowErrorTest, EntryPointShowsTheReportOnce) {
    try {
        Middle();
    } catch (...) {
        mError::ShowError("frmMain.cmdStart_Click");
    }
    try {
        throw Failure(0, "");
    } catch (...) {
        mError::ShowError("M.P");
    }
    ASSERT_EQ(ui.reports.size(), 1u);
    EXPECT_EQ(ui.reports[0].source, "frmMain.cmdStart_Click\r\nOther.Middle\r\nModule.Origin\r\nPavonel");
    EXPECT_EQ(ui.reports[0].description, "broken");
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
