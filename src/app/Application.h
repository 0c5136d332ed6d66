// The program's central object: it owns the options, the profiles with the active one and the settings
// companion, knows the program's folders and its settings file, names the language and FAQ files, and
// opens the maker's pages.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "app/Options.h"
#include "profiles/Profiles.h"
#include "storage/cIni_Application.h"

class Application {
public:
    // The value written as "FILEVERSION": the layout of the settings file.
    static constexpr const char* kFileVersion = "1.1";

    Application();
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    // The profile shown and started: a member of Profiles(), or nullptr before LoadData.
    Profile* ActiveProfile() const { return m_activeProfile; }
    // Making a different profile active counts as a change of data.
    void SetActiveProfile(Profile* profile);

    const std::string& IniPath() const { return m_iniPath; }
    // Makes the settings file's folder when it is missing (once).
    void MakeSettingsFolder();
    const std::string& GetWorkDirectory() const { return m_workDirectory; }
    const std::string& GetLanguageDirectory() const { return m_languageDirectory; }
    const std::string& GetDocDirectory() const { return m_docDirectory; }
    const std::string& GetToolsDirectory() const { return m_toolsDirectory; }

    ::Options& Options() { return *m_options; }
    const ::Options& Options() const { return *m_options; }
    ::Profiles& Profiles() { return *m_profiles; }
    const ::Profiles& Profiles() const { return *m_profiles; }

    // Loads the options and all profiles and makes the remembered profile active, or the one the user
    // chooses when it is gone. False, after telling the user, when no profile could be made active.
    bool LoadData();

    // True when a profile has changed or a different profile was made active (options do not count).
    bool DataChanged() const;

    // Lets the user choose which changed profiles to save; says why the chosen ones were not saved.
    platform::WriteFault SaveData();
    // Saves the profiles named in `strProfiles` (names joined by ";"); says why they were not saved.
    platform::WriteFault SaveDataEx(const std::string& strProfiles);

    // Writes the file and program versions and the options, as one update of the settings file; says why
    // they were not saved.
    platform::WriteFault SaveAppSettings();

    // Why a write did not reach its file, for people.
    static std::string WriteFaultText(platform::WriteFault fault);
    // The message that changes could not be saved, naming the settings file and the reason.
    std::string SaveFailureText(platform::WriteFault fault) const;
    // Shows that message.
    void TellUnsaved(platform::WriteFault fault) const;

    // Writes a shortcut named `linkName` in `folder` that starts `target` with `arguments` (defined with the
    // shortcuts, which lie a floor above). Failure 20008 when it was not written.
    void CreateShortcut(const std::string& folder, const std::string& linkName, const std::string& target,
                        const std::string& arguments);

    static std::string GetFAQFileName(const std::string& abbrev);
    void ShowFAQ(int64_t owner, const std::string& abbrev) const;
    void ShowPavonelWebpage(int64_t owner) const;
    void ContactAuthor(int64_t owner) const;

    std::string GetLanguageFile(const std::string& abbrev) const;
    static std::string GetLanguageFileWithoutPath(const std::string& abbrev);
    std::string GetLanguageName(const std::string& languageFile) const;
    // The abbreviation inside a language file's name; reports failure 20007 and gives "" for a name of
    // fewer than 9 characters.
    std::string GetLanguageAbbrev(const std::string& fileName) const;

    // The maker's web page and the "mailto:" address of the maker's contact, from the build settings.
    static std::string WebpageAddress();
    static std::string ContactAddress();

    // The program's own version with the minor number first, as "APPVERSION" stores it.
    static std::string AppVersionText();
    // The program's own version as people read it: major, minor and revision.
    static std::string VersionText();

private:
    void ComputeDirectories();

    std::unique_ptr<::Options> m_options;
    std::unique_ptr<::Profiles> m_profiles;
    Profile* m_activeProfile = nullptr;
    std::unique_ptr<cIni_Application> m_settings;
    std::string m_iniPath;
    bool m_settingsFolderChecked = false;
    std::string m_languageDirectory;
    std::string m_workDirectory;
    std::string m_docDirectory;
    std::string m_toolsDirectory;
    bool m_activeProfileChanged = false;
    platform::WriteFault m_lastSave = platform::WriteFault::None;  // of the save dialog's save
};
