// How failures travel: a procedure that is not an event entry point ends with
//     } catch (...) { mError::PassOn("Module.Procedure"); }
// and an entry point (an event handler, Main, an owned object's construction or destruction) ends with
//     } catch (...) { mError::ShowError("frmMain.cmdStart_Click"); }
// which hands the failure to the installed reporter (the error report window in the program).
#pragma once

#include <cstdint>
#include <exception>
#include <string>

#include "error/Failure.h"

namespace mError {

// Numbers of the run-time failures that standard exceptions are converted into, and of the collection's.
inline constexpr int32_t kInvalidProcedureCall = 5;
inline constexpr int32_t kOverflow = 6;
inline constexpr int32_t kOutOfMemory = 7;
inline constexpr int32_t kTypeMismatch = 13;
inline constexpr int32_t kInternalError = 51;
inline constexpr int32_t kFileNotFound = 53;
inline constexpr int32_t kPathFileAccessError = 75;
inline constexpr int32_t kSubscriptOutOfRange = 9;
inline constexpr int32_t kObjectVariableNotSet = 91;
inline constexpr int32_t kDuplicateKey = 457;

// Numbers the program raises on purpose (combined with kObjectError by RaiseError).
inline constexpr int32_t kInvalidValueWrite = 1;
inline constexpr int32_t kInvalidValueRead = 2;
inline constexpr int32_t kInvalidResolutionWarning = 20002;
inline constexpr int32_t kLanguageAbbrev = 20007;

// The range of program-defined object errors.
inline constexpr int32_t kObjectError = static_cast<int32_t>(0x80040000u);

// The failure being handled, with standard exceptions converted into their run-time failure numbers.
// Call only inside a catch block.
Failure CurrentFailure();

// Converts any exception into a Failure (see CurrentFailure).
Failure ToFailure(const std::exception_ptr& error);

// Puts `procedure` in front of the current failure's source and throws it on. Call only inside a catch block.
[[noreturn]] void PassOn(const std::string& procedure);

// Puts `procedure` in front of the current failure's source and, unless its number is 0, hands it to the
// installed reporter. Never throws. Call only inside a catch block.
void ShowError(const std::string& procedure) noexcept;

// Shows a failure to the user. The application installs the one that composes the report and opens the
// report window; until then a failure's description and trail go to the standard error stream.
using Reporter = void (*)(const Failure& failure);
void InstallReporter(Reporter reporter) noexcept;

// Runs `body` and passes any failure on with `procedure` in front of its trail: the short form of a
// procedure whose whole body is one expression.
template <class Body>
auto WithTrail(const char* procedure, Body&& body) -> decltype(body()) {
    try {
        return body();
    } catch (...) {
        PassOn(procedure);
    }
}

// Runs `body` as an event entry point: a failure is reported with `procedure` in front of its trail, and the
// action ends there; true when `body` ran to its end. Handlers wired in a table carry their procedure names
// in the table and run through it.
template <class Body>
bool AsEntryPoint(const std::string& procedure, Body&& body) noexcept {
    try {
        body();
        return true;
    } catch (...) {
        ShowError(procedure);
        return false;
    }
}

// Raises a program-defined failure: number OR 0x80040000, with the given description.
[[noreturn]] void RaiseError(int32_t number, const std::string& description);

// Raises a run-time failure (overflow, type mismatch, ...) with its standard description.
[[noreturn]] void RaiseRuntimeError(int32_t number);

// The standard description of a run-time failure number.
std::string RuntimeDescription(int32_t number);

}  // namespace mError
