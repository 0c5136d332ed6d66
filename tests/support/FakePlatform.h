// A Platform that lives in a test's own program folder and records what the shell was asked to do.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/Platform.h"

struct ShellCall {
    int64_t owner;
    std::string verb;
    std::string file;
    std::string parameters;
    std::string directory;
    int32_t showCommand;

    bool operator==(const ShellCall&) const = default;
};

class FakePlatform : public Platform {
public:
    explicit FakePlatform(std::string programDirectory) : m_programDirectory(std::move(programDirectory)) {}

    std::string ProgramDirectory() override { return m_programDirectory; }
    std::string SettingsDirectory() override {
        return settingsDirectory.empty() ? m_programDirectory : settingsDirectory;
    }
    std::string DataDirectory() override {
        return dataDirectory.empty() ? m_programDirectory : dataDirectory;
    }
    int32_t ShellExec(int64_t owner, const std::string& verb, const std::string& file,
                      const std::string& parameters, const std::string& directory,
                      int32_t showCommand) override;
    std::string SpecialFolder(int32_t csidl) override;
    std::string WindowsDirectory() override { return windowsDirectory; }
    std::string TextEditorName() override { return "write.exe"; }
    bool CreateNamedMutex(const std::string& name) override;
    std::string ShellLinkEnding() override { return linkEnding; }
    // Keeps the link and writes a file of that name, so that the link exists for the program's file tests;
    // with `linksFail` set, writes nothing and fails.
    bool WriteShellLink(const std::string& linkFile, const ShellLink& link) override;
    std::optional<ShellLink> ReadShellLink(const std::string& linkFile) override;

    std::vector<ShellCall> calls;
    int32_t shellResult = kShellExecOk;
    // The special folders by number; a number not listed has no folder.
    std::map<int32_t, std::string> specialFolders;
    std::string windowsDirectory = "/usr/bin";
    std::vector<std::string> mutexes;
    std::string linkEnding = ".lnk";
    std::string settingsDirectory;           // "" for the program's folder
    std::string dataDirectory;               // "" for the program's folder
    std::map<std::string, ShellLink> links;  // by link file, in the order of their names
    bool linksFail = false;

private:
    std::string m_programDirectory;
};
