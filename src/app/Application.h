// The program's central object: it owns the options and the settings companion, knows the program's
// folders and its settings file, names the language and FAQ files, and opens the maker's pages.
#pragma once

#include <cstdint>
#include <string>

#include "app/Options.h"
#include "storage/cIni_Application.h"

class Application {
public:
    // The value written as "FILEVERSION": the layout of the settings file.
    static constexpr const char* kFileVersion = "1.1";

    Application();

    const std::string& IniPath() const { return m_iniPath; }
    const std::string& GetWorkDirectory() const { return m_workDirectory; }
    const std::string& GetLanguageDirectory() const { return m_languageDirectory; }
    const std::string& GetDocDirectory() const { return m_docDirectory; }
    const std::string& GetToolsDirectory() const { return m_toolsDirectory; }

    ::Options& Options() { return m_options; }
    const ::Options& Options() const { return m_options; }

    // Writes the file and program versions and the options, as one update of the settings file.
    void SaveAppSettings();

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

private:
    void ComputeDirectories();

    ::Options m_options;
    cIni_Application m_settings;
    std::string m_iniPath;
    std::string m_languageDirectory;
    std::string m_workDirectory;
    std::string m_docDirectory;
    std::string m_toolsDirectory;
};
