// A program folder for benchmarks: a settings file with many profiles and the shipped language files,
// with the program-wide objects created on it. Lives until the benchmark program ends.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "platform/Platform.h"

// A folder of a benchmark's own under the temporary folder (its name gets the process id and a number),
// removed with everything in it when the benchmark is done with it.
class TempFolder {
public:
    explicit TempFolder(const std::string& name);
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    const std::filesystem::path& Path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

class BenchFolder {
public:
    explicit BenchFolder(int profiles);
    ~BenchFolder();
    BenchFolder(const BenchFolder&) = delete;
    BenchFolder& operator=(const BenchFolder&) = delete;

    static std::string ProfileName(int i);

    // A platform whose program folder is `folder` and whose shell starts nothing.
    static std::unique_ptr<Platform> PlatformAt(const std::string& folder);

    // Rewrites the settings file as it was at the start.
    void WriteSettings() const;

    // Makes every profile's game the tarvolin.exe in `gameFolder`.
    void PointAt(const std::filesystem::path& gameFolder) const;

    // Makes this folder the program's folder and creates the program-wide objects on it.
    void Enter();

    const std::filesystem::path& Path() const { return m_folder.Path(); }

private:
    int m_profiles;
    TempFolder m_folder;
    std::unique_ptr<Platform> m_platform;
};
