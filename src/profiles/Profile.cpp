#include "profiles/Profile.h"

#include <algorithm>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/UserInterface.h"
#include "app/mPath.h"
#include "base/mString.h"
#include "error/mError.h"
#include "platform/Platform.h"
#include "storage/IniDocument.h"
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

bool Profile::LoadData() try {
    iniFile::Load load = m_settings.BeginLoad();
    m_loaded = false;
    ReadSettings([this](const auto& setting) { return m_settings.Read(setting.key, setting.readTrail); });
    m_loaded = true;
    m_isNewProfile = false;
    return false;
} catch (...) {
    mError::PassOn("Profile.LoadData");
}

namespace {

// A value of the text as a read of the settings file gives it.
std::string TextOf(const IniDocument& document, const std::string& section, const IniKey<const char*>& key) {
    return mIni::AsRead(document.Value(section, key.name), key.defaultValue);
}
bool TextOf(const IniDocument& document, const std::string& section, const IniKey<bool>& key) {
    return mIni::BoolFromText(mIni::AsRead(document.Value(section, key.name), ""), key.defaultValue);
}
int16_t TextOf(const IniDocument& document, const std::string& section, const IniKey<int16_t>& key) {
    return mString::ToInt16(
        mIni::AsRead(document.Value(section, key.name), std::to_string(key.defaultValue)));
}

}  // namespace

void Profile::LoadData(const IniDocument& document, const std::string& section) try {
    m_loaded = false;
    ReadSettings([&](const auto& setting) { return TextOf(document, section, setting.key); });
    m_loaded = true;
    m_isNewProfile = false;
} catch (...) {
    mError::PassOn("Profile.LoadData");
}

void Profile::CopySettingsFrom(const Profile& source) {
    for (const ProfileSettings::Any& setting : ProfileSettings::kAll)
        std::visit([&](const auto* declared) { Set(*declared, source.Get(*declared)); }, setting);
}

// An ID below 1 would select no resolution at all; the replacement counts as a change, so the next save
// repairs the file.
void Profile::CheckResolution() {
    if (PreDefinedResolution() >= 1)
        return;
    Ui().MsgBox(InvalidResolutionWarning(PreDefinedResolution()), vbCritical | vbOKOnly);
    SetPreDefinedResolution(1);
}

void Profile::SaveData() try {
    iniFile::Update save = m_settings.BeginSave();
    for (const ProfileSettings::Any& setting : ProfileSettings::kAll)
        std::visit(
            [this](const auto* declared) {
                m_settings.Write(declared->key, Get(*declared), declared->writeTrail);
            },
            setting);
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
    if (LogMessages())
        line += " -log ";
    if (UsePreDefinedResolution()) {
        line += "-res " + std::to_string(PreDefinedResolution()) + " ";
    } else {
        line += "-screensize " + std::to_string(ResolutionWidth()) + "x" +
                std::to_string(ResolutionHeight()) + " ";
    }
    if (Freeplay())
        line += "-freeplay ";
    if (Refresh() > 0)
        line += "-refresh " + std::to_string(Refresh()) + " ";
    if (!ScenarioPath().empty())
        line += "-scenario " + ScenarioPath();
    if (!GraphicPakPath().empty())
        line += "-graphicpack " + GraphicPakPath();
    return mString::Trim(line);
} catch (...) {
    mError::PassOn("Profile.GetCmdLineParameters");
}

void Profile::StartTarvolin(int64_t lngHWND) try {
    if (!ShowStartTarvolinDialog())
        return;
    const std::string parameters = GetCmdLineParameters();
    const std::string directory = mPath::GetDirectoryPart(TarvolinPath());
    const int32_t result =
        Os().ShellExec(lngHWND, "open", TarvolinPath(), parameters, directory, kSwShowNormal);
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
    Ui().MsgBox(Translator().TranslateEx("ERROR_MESSAGES", key, TarvolinPath()), vbExclamation | vbOKOnly);
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
    text += "Freeplay: " + translate.TranslateBool_YesNo(Freeplay()) + kCrLf;
    text += "Log messages: " + translate.TranslateBool_YesNo(LogMessages()) + kCrLf;
    text += "Refresh: " + GetRefreshDescription(Refresh()) + kCrLf;
    text += GraphicPakPath().empty() ? std::string("Graphic pak: standard graphic pak")
                                     : "Graphic pak: " + GraphicPakPath();
    text += kCrLf;
    text += ScenarioPath().empty() ? std::string("Scenario: none") : "Scenario: " + ScenarioPath();
    text += kCrLf;
    if (UsePreDefinedResolution()) {
        text += "Resolution: " + GetStandardResolutionDescription(PreDefinedResolution());
    } else {
        text +=
            "Resolution: " + std::to_string(ResolutionWidth()) + " x " + std::to_string(ResolutionHeight());
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
