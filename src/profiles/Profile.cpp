#include "profiles/Profile.h"

#include <algorithm>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/UserInterface.h"
#include "app/mPath.h"
#include "base/mString.h"
#include "error/mError.h"
#include "platform/Platform.h"
#include "storage/mIni.h"
#include "translate/cTranslate.h"

namespace {

using mString::kCrLf;

}  // namespace

std::string Profile::InvalidResolutionWarning(int16_t id) {
    return std::string("Warning:") + kCrLf + "The configuration file contains the invalid Resolution-ID " +
           std::to_string(id) + "." + kCrLf + "The resolution 1 (600 x 480 pixel) will be used instead." +
           kCrLf + kCrLf + "Warning-ID: " + std::to_string(mError::kInvalidResolutionWarning);
}

template <class T>
void Profile::Assign(T& field, const T& value) {
    if (field == value)
        return;
    field = value;
    m_dataChanged = true;
}

void Profile::SetProfileName(const std::string& value) {
    m_profileName = value;
    m_settings.SetProfileName(value);
}

bool Profile::IsStorableCaption(const std::string& caption) {
    const std::size_t longest = mIni::kReadBufferSize - 1 - std::string_view(kNamePrefix).size();
    if (caption.empty() || caption.size() > longest || mString::TrimView(caption, " \t") != caption)
        return false;
    return std::none_of(caption.begin(), caption.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < 0x20 || byte == 0x7F || c == ']' || c == ';' || c == '=';
    });
}

std::string Profile::ProfileCaption() const {
    if (mString::StartsWithNoCase(m_profileName, kNamePrefix))
        return m_profileName.substr(std::string_view(kNamePrefix).size());
    return m_profileName;
}

void Profile::SetLogMessages(bool value) {
    Assign(m_logMessages, value);
}
void Profile::SetFreeplay(bool value) {
    Assign(m_freeplay, value);
}
void Profile::SetUsePreDefinedResolution(bool value) {
    Assign(m_usePreDefinedResolution, value);
}
void Profile::SetPreDefinedResolution(int16_t value) {
    Assign(m_preDefinedResolution, value);
}
void Profile::SetResolutionWidth(int16_t value) {
    Assign(m_resolutionWidth, value);
}
void Profile::SetResolutionHeight(int16_t value) {
    Assign(m_resolutionHeight, value);
}
// The texts are kept on one line, whoever hands them in: the settings file holds each on one.
void Profile::SetScenarioPath(const std::string& value) {
    Assign(m_scenarioPath, mString::OneLine(value));
}
void Profile::SetGraphicPakPath(const std::string& value) {
    Assign(m_graphicPakPath, mString::OneLine(value));
}
void Profile::SetTarvolinPath(const std::string& value) {
    Assign(m_tarvolinPath, mString::OneLine(value));
}
void Profile::SetProfileDescription(const std::string& value) {
    Assign(m_profileDescription, mString::OneLine(value));
}
void Profile::SetRefresh(int16_t value) {
    Assign(m_refresh, value);
}

bool Profile::LoadData() try {
    iniFile::Load load = m_settings.BeginLoad();
    m_loaded = false;
    m_logMessages = m_settings.Read_LogMessages();
    m_freeplay = m_settings.Read_Freeplay();
    m_usePreDefinedResolution = m_settings.Read_UsePreDefinedResolution();
    m_preDefinedResolution = m_settings.Read_PreDefinedResolution();
    CheckResolution();
    ReadSettings();
    m_loaded = true;
    m_isNewProfile = false;
    return false;
} catch (...) {
    mError::PassOn("Profile.LoadData");
}

// An ID below 1 would select no resolution at all; the replacement counts as a change, so the next save
// repairs the file.
void Profile::CheckResolution() {
    if (m_preDefinedResolution >= 1)
        return;
    Ui().MsgBox(InvalidResolutionWarning(m_preDefinedResolution), vbCritical | vbOKOnly);
    SetPreDefinedResolution(1);
}

void Profile::ReadSettings() {
    m_resolutionWidth = m_settings.Read_ResolutionWidth();
    m_resolutionHeight = m_settings.Read_ResolutionHeight();
    m_scenarioPath = m_settings.Read_ScenarioPath();
    m_graphicPakPath = m_settings.Read_GraphicPakPath();
    m_refresh = m_settings.Read_Refresh();
    m_tarvolinPath = m_settings.Read_TarvolinPath();
    m_profileDescription = m_settings.Read_ProfileDescription();
}

void Profile::SaveData() try {
    iniFile::Update save = m_settings.BeginSave();
    m_settings.Write_LogMessages(m_logMessages);
    m_settings.Write_Freeplay(m_freeplay);
    m_settings.Write_UsePreDefinedResolution(m_usePreDefinedResolution);
    m_settings.Write_PreDefinedResolution(m_preDefinedResolution);
    m_settings.Write_ResolutionWidth(m_resolutionWidth);
    m_settings.Write_ResolutionHeight(m_resolutionHeight);
    m_settings.Write_ScenarioPath(m_scenarioPath);
    m_settings.Write_GraphicPakPath(m_graphicPakPath);
    m_settings.Write_Refresh(m_refresh);
    m_settings.Write_TarvolinPath(m_tarvolinPath);
    m_settings.Write_ProfileDescription(m_profileDescription);
    // A save that did not reach the file keeps the profile changed, so the user is asked again at the end.
    if (save.Commit() == platform::WriteFault::None)
        m_dataChanged = false;
} catch (...) {
    mError::PassOn("Profile.SaveData");
}

// The scenario and the graphic pak get no blank behind them, so a scenario runs straight into
// "-graphicpack "; the game has always been given its command line that way.
std::string Profile::GetCmdLineParameters() const try {
    std::string line;
    if (m_logMessages)
        line += " -log ";
    if (m_usePreDefinedResolution) {
        line += "-res " + std::to_string(m_preDefinedResolution) + " ";
    } else {
        line += "-screensize " + std::to_string(m_resolutionWidth) + "x" +
                std::to_string(m_resolutionHeight) + " ";
    }
    if (m_freeplay)
        line += "-freeplay ";
    if (m_refresh > 0)
        line += "-refresh " + std::to_string(m_refresh) + " ";
    if (!m_scenarioPath.empty())
        line += "-scenario " + m_scenarioPath;
    if (!m_graphicPakPath.empty())
        line += "-graphicpack " + m_graphicPakPath;
    return mString::Trim(line);
} catch (...) {
    mError::PassOn("Profile.GetCmdLineParameters");
}

void Profile::StartTarvolin(int64_t lngHWND) try {
    if (!ShowStartTarvolinDialog())
        return;
    const std::string parameters = GetCmdLineParameters();
    const std::string directory = mPath::GetDirectoryPart(m_tarvolinPath);
    const int32_t result =
        Os().ShellExec(lngHWND, "open", m_tarvolinPath, parameters, directory, kSwShowNormal);
    if (result <= kShellExecSuccessAbove)
        TellWhyTheGameDidNotStart(result);
} catch (...) {
    mError::PassOn("Profile.StartTarvolin");
}

// The shell's own codes say why; the message names the path so the user can see what was tried.
void Profile::TellWhyTheGameDidNotStart(int32_t shellResult) const {
    const char* key = "ERR_GameNotExecutable";
    if (shellResult == kSeErrFileNotFound || shellResult == kSeErrPathNotFound)
        key = "ERR_GameNotFound";
    else if (shellResult == kSeErrNoAssociation)
        key = "ERR_WineMissing";
    Ui().MsgBox(Translator().TranslateEx("ERROR_MESSAGES", key, m_tarvolinPath), vbExclamation | vbOKOnly);
}

bool Profile::ShowStartTarvolinDialog() try {
    if (!App().Options().ShowStartTarvolinDialog())
        return true;
    return Ui().ShowStartTarvolinDialog(*this);
} catch (...) {
    mError::PassOn("Profile.ShowStartTarvolinDialog");
}

std::string Profile::GetSettingsListAsText() const try {
    const cTranslate& translate = Translator();
    std::string text;
    text += "Freeplay: " + translate.TranslateBool_YesNo(m_freeplay) + kCrLf;
    text += "Log messages: " + translate.TranslateBool_YesNo(m_logMessages) + kCrLf;
    text += "Refresh: " + GetRefreshDescription(m_refresh) + kCrLf;
    text += m_graphicPakPath.empty() ? std::string("Graphic pak: standard graphic pak")
                                     : "Graphic pak: " + m_graphicPakPath;
    text += kCrLf;
    text += m_scenarioPath.empty() ? std::string("Scenario: none") : "Scenario: " + m_scenarioPath;
    text += kCrLf;
    if (m_usePreDefinedResolution) {
        text += "Resolution: " + GetStandardResolutionDescription(m_preDefinedResolution);
    } else {
        text +=
            "Resolution: " + std::to_string(m_resolutionWidth) + " x " + std::to_string(m_resolutionHeight);
    }
    return text;
} catch (...) {
    mError::PassOn("Profile.GetSettingsListAsText");
}

std::string Profile::GetStandardResolutionDescription(int32_t id) try {
    return Translator().TranslateEx("MAIN_DIALOG", "LST_RESOLUTION_" + std::to_string(id));
} catch (...) {
    mError::PassOn("Profile.GetStandardResolutionDescription");
}

std::string Profile::GetRefreshDescription(int32_t id) try {
    return Translator().TranslateEx("MAIN_DIALOG", "LST_REFRESH_" + std::to_string(id));
} catch (...) {
    mError::PassOn("Profile.GetRefreshDescription");
}
