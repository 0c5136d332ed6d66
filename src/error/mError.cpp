#include "error/mError.h"

#include <filesystem>
#include <iostream>
#include <new>
#include <stdexcept>
#include <system_error>

namespace mError {
namespace {

Failure FromFilesystemError(const std::filesystem::filesystem_error& error) {
    bool missing = error.code() == std::errc::no_such_file_or_directory;
    int32_t number = missing ? kFileNotFound : kPathFileAccessError;
    std::string description = RuntimeDescription(number);
    if (!error.path1().empty())
        description += ": " + error.path1().string();
    return Failure(number, description);
}

void PrintFailure(const Failure& failure) {
    std::cerr << "Pavonel: " << failure.Description() << " (" << failure.Number() << ")\n"
              << failure.Source() << '\n';
}

Reporter g_reporter = &PrintFailure;

}  // namespace

void InstallReporter(Reporter reporter) noexcept {
    g_reporter = reporter != nullptr ? reporter : &PrintFailure;
}

std::string RuntimeDescription(int32_t number) {
    switch (number) {
        case kInvalidProcedureCall:
            return "Invalid procedure call or argument";
        case kOverflow:
            return "Overflow";
        case kOutOfMemory:
            return "Out of memory";
        case kTypeMismatch:
            return "Type mismatch";
        case kFileNotFound:
            return "File not found";
        case kPathFileAccessError:
            return "Path/File access error";
        case kSubscriptOutOfRange:
            return "Subscript out of range";
        case kObjectVariableNotSet:
            return "Object variable or With block variable not set";
        case kDuplicateKey:
            return "This key is already associated with an element of this collection";
        default:
            return "Internal error";
    }
}

Failure ToFailure(const std::exception_ptr& error) {
    if (!error)
        return Failure(0, std::string());
    try {
        std::rethrow_exception(error);
    } catch (const Failure& failure) {
        return failure;
    } catch (const std::bad_alloc&) {
        return Failure(kOutOfMemory, RuntimeDescription(kOutOfMemory));
    } catch (const std::filesystem::filesystem_error& fsError) {
        return FromFilesystemError(fsError);
    } catch (const std::ios_base::failure&) {
        return Failure(kPathFileAccessError, RuntimeDescription(kPathFileAccessError));
    } catch (const std::out_of_range&) {
        return Failure(kOverflow, RuntimeDescription(kOverflow));
    } catch (const std::overflow_error&) {
        return Failure(kOverflow, RuntimeDescription(kOverflow));
    } catch (const std::invalid_argument&) {
        return Failure(kTypeMismatch, RuntimeDescription(kTypeMismatch));
    } catch (const std::exception& other) {
        return Failure(kInternalError, RuntimeDescription(kInternalError) + ": " + other.what());
    } catch (...) {
        return Failure(kInternalError, RuntimeDescription(kInternalError));
    }
}

Failure CurrentFailure() {
    return ToFailure(std::current_exception());
}

void PassOn(const std::string& procedure) {
    Failure failure = CurrentFailure();
    failure.PrependSource(procedure);
    throw failure;
}

void ShowError(const std::string& procedure) noexcept {
    // A failure inside the report window itself must not open another report window.
    static bool reporting = false;
    try {
        Failure failure = CurrentFailure();
        failure.PrependSource(procedure);
        if (failure.Number() == 0)
            return;
        if (reporting) {
            PrintFailure(failure);
            return;
        }
        reporting = true;
        g_reporter(failure);
        reporting = false;
    } catch (...) {
        reporting = false;
        std::cerr << "Pavonel: a failure in " << procedure << " could not be reported.\n";
    }
}

void RaiseError(int32_t number, const std::string& description) {
    throw Failure(number | kObjectError, description);
}

void RaiseRuntimeError(int32_t number) {
    throw Failure(number, RuntimeDescription(number));
}

}  // namespace mError
