// A program folder for benchmarks: a settings file with many profiles and the shipped language files,
// with the program-wide objects created on it. Lives until the benchmark program ends.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "platform/Platform.h"

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

    const std::filesystem::path& Path() const { return m_path; }

private:
    int m_profiles;
    std::filesystem::path m_path;
    std::unique_ptr<Platform> m_platform;
};
