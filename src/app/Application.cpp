#include "app/Application.h"

#include <filesystem>
#include <system_error>

#include "Version.h"
#include "app/PublicObjects.h"
#include "app/UserInterface.h"
#include "app/mPath.h"
#include "error/mError.h"
#include "platform/NativePath.h"
#include "platform/Platform.h"
#include "storage/mIni.h"
#include "translate/cTranslate.h"

namespace {

// The companions find the settings file through the program-wide application object, whichever it is now.
std::optional<std::string_view> ProgramSettingsPath(bool forWriting) {
    if (!g_cApp)
        return std::nullopt;
    if (forWriting)
        g_cApp->MakeSettingsFolder();
    return std::optional<std::string_view>(g_cApp->IniPath());
}

// The language key that names why a save did not reach the file.
const char* SaveFaultKey(platform::WriteFault fault) {
    switch (fault) {
        case platform::WriteFault::NotAFile:
            return "ERR_SaveNotAFile";
        case platform::WriteFault::NoFolder:
            return "ERR_SaveNoFolder";
        case platform::WriteFault::ReadOnlyFile:
            return "ERR_SaveReadOnlyFile";
        case platform::WriteFault::ReadOnlyFolder:
            return "ERR_SaveReadOnlyFolder";
        case platform::WriteFault::Locked:
            return "ERR_SaveLocked";
        case platform::WriteFault::DiskFull:
            return "ERR_SaveDiskFull";
        case platform::WriteFault::LineBreak:
            return "ERR_SaveLineBreak";
        case platform::WriteFault::NameTaken:
            return "ERR_SaveNameTaken";
        case platform::WriteFault::None:
        case platform::WriteFault::WriteFailed:
            break;
    }
    return "ERR_SaveWriteFailed";
}

}  // namespace

Application::Application() {
    try {
        cIni_Base::InstallPathSource(&ProgramSettingsPath);
        m_profiles = std::make_unique<::Profiles>();
        m_options = std::make_unique<::Options>();
        m_settings = std::make_unique<cIni_Application>();
        ComputeDirectories();
        m_activeProfileChanged = false;
    } catch (...) {
        mError::ShowError("Application.Class_Initialize");
    }
}

Application::~Application() {
    try {
        m_options.reset();
        m_activeProfile = nullptr;
        m_profiles.reset();
        m_settings.reset();
    } catch (...) {
        mError::ShowError("Application.Class_Terminate");
    }
}

void Application::SetActiveProfile(Profile* profile) {
    if (profile == m_activeProfile)
        return;
    m_activeProfile = profile;
    m_activeProfileChanged = true;
}

bool Application::LoadData() try {
    bool result = true;
    m_options->LoadData();
    m_profiles->LoadData();
    if (m_profiles->DoesProfileExist(m_profiles->ReadFromIni_ActiveProfileName())) {
        SetActiveProfile(&m_profiles->Item(m_profiles->ReadFromIni_ActiveProfileName()));
    } else if (Profile* chosen = m_profiles->ShowLoadProfileDialog()) {
        SetActiveProfile(chosen);
    } else {
        result = false;
        Ui().MsgBox("You have to load a profile, if you want to use this application.", vbOKOnly);
    }
    return result;
} catch (...) {
    mError::PassOn("Application.LoadData");
}

bool Application::DataChanged() const try {
    return m_profiles->DataChanged() || m_activeProfileChanged;
} catch (...) {
    mError::PassOn("Application.DataChanged");
}

platform::WriteFault Application::SaveData() try {
    m_lastSave = platform::WriteFault::None;
    Ui().ShowSaveDialog();
    return m_lastSave;
} catch (...) {
    mError::PassOn("Application.SaveData");
}

platform::WriteFault Application::SaveDataEx(const std::string& strProfiles) try {
    // A save that fails half-way has not saved what was asked either.
    m_lastSave = platform::WriteFault::WriteFailed;
    m_lastSave = m_profiles->SaveData(strProfiles);
    return m_lastSave;
} catch (...) {
    mError::PassOn("Application.SaveDataEx");
}

// The settings folder of an installed program is made at its first save; the program's own folder is there
// anyway. A folder that cannot be made leaves the save a no-op, as a read-only file does.
void Application::MakeSettingsFolder() {
    if (m_settingsFolderChecked)
        return;
    m_settingsFolderChecked = true;
    std::error_code ignored;
    std::filesystem::create_directories(platform::PathOf(mPath::GetDirectoryPart(m_iniPath)), ignored);
}

void Application::ComputeDirectories() {
    char separator = mPath::Separator();
    m_workDirectory = mPath::AddOrRemoveBackslash(Os().ProgramDirectory(), true);
    m_iniPath = mPath::AddOrRemoveBackslash(Os().SettingsDirectory(), true) + "Pavonel.ini";
    const std::string data = mPath::AddOrRemoveBackslash(Os().DataDirectory(), true);
    m_languageDirectory = data + "config" + separator;
    m_docDirectory = data + "doc" + separator;
    m_toolsDirectory = data + "tools" + separator;
}

std::string Application::AppVersionText() {
    return std::to_string(Version::kMinor) + "." + std::to_string(Version::kMajor) + "." +
           std::to_string(Version::kRevision);
}

std::string Application::VersionText() {
    return std::to_string(Version::kMajor) + "." + std::to_string(Version::kMinor) + "." +
           std::to_string(Version::kRevision);
}

platform::WriteFault Application::SaveAppSettings() try {
    iniFile::Update save = m_settings->BeginSave();
    m_settings->Write_FileVersion(kFileVersion);
    m_settings->Write_AppVersion(AppVersionText());
    // The options' own update lies inside this one, which alone reaches the file: when it does not, they
    // stay as changed as they were.
    const bool optionsChanged = m_options->DataChanged();
    m_options->SaveData();
    const platform::WriteFault fault = save.Commit();
    if (fault != platform::WriteFault::None)
        m_options->SetDataChanged(optionsChanged);
    return fault;
} catch (...) {
    mError::PassOn("Application.SaveAppSettings");
}

std::string Application::WriteFaultText(platform::WriteFault fault) {
    return Translator().TranslateEx("ERROR_MESSAGES", SaveFaultKey(fault));
}

std::string Application::SaveFailureText(platform::WriteFault fault) const {
    return Translator().TranslateEx("ERROR_MESSAGES", "ERR_SettingsNotSaved", m_iniPath,
                                    WriteFaultText(fault));
}

void Application::TellUnsaved(platform::WriteFault fault) const {
    Ui().MsgBox(SaveFailureText(fault), vbOKOnly | vbExclamation);
}

std::string Application::GetFAQFileName(const std::string& abbrev) {
    return "FAQ_" + abbrev + ".txt";
}

void Application::ShowFAQ(int64_t owner, const std::string& abbrev) const try {
    std::string path = m_docDirectory + GetFAQFileName(abbrev);
    if (mPath::FileExists(path)) {
        Os().ShellExec(owner, "open", path, "", m_docDirectory, kSwShowNormal);
    } else {
        Ui().MsgBox(Translator().TranslateEx("ERROR_MESSAGES", "ERR_FileNotFound", path), vbOKOnly);
    }
} catch (...) {
    mError::PassOn("Application.ShowFAQ");
}

std::string Application::WebpageAddress() {
    return std::string("https://") + Version::kWebHost + "/";
}

std::string Application::ContactAddress() {
    return std::string("mailto:") + Version::kContactEmail;
}

void Application::ShowPavonelWebpage(int64_t owner) const try {
    Os().ShellExec(owner, "open", WebpageAddress(), "", "", kSwShowNormal);
} catch (...) {
    mError::PassOn("Application.ShowPavonelWebpage");
}

void Application::ContactAuthor(int64_t owner) const try {
    Os().ShellExec(owner, "open", ContactAddress(), "", "", kSwShowNormal);
} catch (...) {
    mError::PassOn("Application.ContactAuthor");
}

std::string Application::GetLanguageFileWithoutPath(const std::string& abbrev) {
    return "LNG_" + abbrev + ".ini";
}

std::string Application::GetLanguageFile(const std::string& abbrev) const try {
    return m_languageDirectory + GetLanguageFileWithoutPath(abbrev);
} catch (...) {
    mError::PassOn("Application.LanguagePath");
}

std::string Application::GetLanguageName(const std::string& languageFile) const try {
    return mIni::ReadFromIni(languageFile, "FileInfo", "LanguageName", "");
} catch (...) {
    mError::PassOn("Application.GetLanguageName");
}

std::string Application::GetLanguageAbbrev(const std::string& fileName) const {
    try {
        if (fileName.size() >= 9)
            return fileName.substr(4, fileName.size() - 8);
        mError::RaiseError(mError::kLanguageAbbrev,
                           "Cannot extract language abbrev. from filename '" + fileName + "'");
    } catch (...) {
        mError::ShowError("Application.GetLanguageAbbrev");
    }
    return {};
}
