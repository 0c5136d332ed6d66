#include "app/Application.h"

#include "Version.h"
#include "app/PublicObjects.h"
#include "app/UserInterface.h"
#include "app/mPath.h"
#include "error/mError.h"
#include "platform/Platform.h"
#include "storage/mIni.h"
#include "translate/cTranslate.h"

Application::Application() {
    try {
        ComputeDirectories();
    } catch (...) {
        mError::ShowError("Application.Class_Initialize");
    }
}

void Application::ComputeDirectories() {
    char separator = mPath::Separator();
    m_workDirectory = mPath::AddOrRemoveBackslash(Os().ProgramDirectory(), true);
    m_iniPath = m_workDirectory + "Pavonel.ini";
    m_languageDirectory = m_workDirectory + "config" + separator;
    m_docDirectory = m_workDirectory + "doc" + separator;
    m_toolsDirectory = m_workDirectory + "tools" + separator;
}

std::string Application::AppVersionText() {
    return std::to_string(Version::kMinor) + "." + std::to_string(Version::kMajor) + "." +
           std::to_string(Version::kRevision);
}

void Application::SaveAppSettings() try {
    iniFile::Update save = m_settings.BeginSave();
    m_settings.Write_FileVersion(kFileVersion);
    m_settings.Write_AppVersion(AppVersionText());
    m_options.SaveData();
} catch (...) {
    mError::PassOn("Application.SaveAppSettings");
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
