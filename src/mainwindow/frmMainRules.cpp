#include "mainwindow/frmMainRules.h"

#include <array>
#include <cmath>
#include <stdexcept>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/mPath.h"
#include "base/mString.h"
#include "error/mError.h"
#include "translate/cTranslate.h"

namespace frmMainRules {
namespace {

// Raises the input check's failure with the text of `key` in the error messages.
[[noreturn]] void Refuse(const char* key) {
    mError::RaiseError(kInputCheckFailure, Translator().TranslateEx("ERROR_MESSAGES", key));
}

// True for a numeric text whose whole part (rounded down) is below `minimum`.
bool IsBelow(const std::string& text, int minimum) {
    if (!mString::IsNumeric(text))
        return false;
    try {
        return std::floor(std::stod(mString::Trim(text))) < minimum;
    } catch (const std::out_of_range&) {
        return false;  // far beyond any minimum, or far below: a huge number is no correction's business
    }
}

}  // namespace

// The same option words as the profile's composition, from the controls' values instead of the profile's.
std::string GetCmdLineParameters(const MainWindowValues& values) try {
    std::string text;
    if (values.logMessages == MainWindowValues::kChecked)
        text += " -log ";
    if (values.standardResolution)
        text += "-res " + std::to_string(values.resolution) + " ";
    else
        text += "-screensize " + values.width + "x" + values.height + " ";
    if (values.freeplay == MainWindowValues::kChecked)
        text += "-freeplay ";
    if (values.refresh > 0)
        text += "-refresh " + std::to_string(values.refresh) + " ";
    if (!values.scenario.empty())
        text += "-scenario " + values.scenario;
    if (!values.graphicPack.empty())
        text += "-graphicpack " + values.graphicPack;
    return mString::Trim(text);
} catch (...) {
    mError::PassOn("frmMain.GetCmdLineParameters");
}

void CheckData(const MainWindowValues& values) try {
    const std::string folder = GameFolder(values.tarvolinPath);
    if (!values.scenario.empty() && !mPath::FolderExists(folder + values.scenario))
        Refuse("ERR_PathNotFound");
    if (!values.graphicPack.empty() && !mPath::FileExists(folder + values.graphicPack))
        Refuse("ERR_PathNotFound");
    // The folder's check has always used the file's message.
    if (!mPath::FolderExists(folder))
        Refuse("ERR_FileNotFound");
    if (!mString::IsNumeric(values.height) || !mString::IsNumeric(values.width))
        Refuse("ERR_InvalidUserDefinedResolution");
} catch (...) {
    mError::PassOn("frmMain.CheckData");
}

void CompareCommandLines(const std::string& window, const std::string& profile) {
    if (window == profile)
        return;
    mError::RaiseError(kCommandLineMismatch, "Commandline parameters should be: " + window + mString::kCrLf +
                                                 "Commandline parameters are: " + profile + mString::kCrLf +
                                                 mString::kCrLf + "Please contact the author. Thanks.");
}

ResolutionCorrection CorrectInput(const MainWindowValues& values) {
    ResolutionCorrection correction;
    if (values.standardResolution)
        return correction;
    if (IsBelow(values.height, kMinimumHeight))
        correction.height = std::to_string(kMinimumHeight);
    if (IsBelow(values.width, kMinimumWidth))
        correction.width = std::to_string(kMinimumWidth);
    return correction;
}

bool TypesIntoResolutionField(int character) {
    return (character >= 0x20 || character == 8) && character != 0x7F;
}

bool IsResolutionKey(int keyAscii) {
    return (keyAscii >= '0' && keyAscii <= '9') || keyAscii == 8;
}

std::optional<PreviewResolution> PreviewFor(int resolution) {
    static constexpr std::array<PreviewResolution, 5> kEntries = {
        {{640, 480, false}, {800, 600, false}, {1024, 768, false}, {1280, 1024, false}, {0, 0, true}}};
    if (resolution < 1 || resolution > static_cast<int>(kEntries.size()))
        return std::nullopt;
    return kEntries[static_cast<std::size_t>(resolution - 1)];
}

std::string GameFolder(const std::string& tarvolinPath) {
    return mPath::AddOrRemoveBackslash(mPath::GetDirectoryPart(tarvolinPath), true);
}

std::string LogFilePath(const std::string& tarvolinPath) {
    return GameFolder(tarvolinPath) + "tarvo.log";
}

std::string CleanText(const std::string& text) {
    std::string blanked = text;
    for (char& c : blanked) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte == 0x7F)
            c = ' ';
    }
    std::string cleaned;
    for (char c : blanked) {
        if (c != ' ' || (!cleaned.empty() && cleaned.back() != ' '))
            cleaned += c;
    }
    return mString::Trim(cleaned);
}

std::string VersionLine(const std::string& withText, const std::string& gameVersion) {
    return "Pavonel " + Application::VersionText() + " " + withText + " " + gameVersion;
}

}  // namespace frmMainRules
