// The stand-in game (tests/standin) as a test meets it: installed under the game's name in a folder of the
// test's own, and the record it leaves of how it was started.
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

// How the stand-in found itself started.
struct LaunchRecord {
    std::string directory;               // its working directory
    std::vector<std::string> arguments;  // argv[1] on

    bool operator==(const LaunchRecord&) const = default;
};

class StandInGame {
public:
    // Copies the stand-in into `folder` (created when missing) as `name`, with execute permission.
    explicit StandInGame(const std::filesystem::path& folder, const std::string& name = "tarvolin.exe");

    // The full path of the installed game.
    const std::string& Path() const { return m_path; }

    // The record file the game writes beside itself when it starts.
    std::string RecordPath() const;

    // The record of a start, once it is there; nothing when none arrives within `timeout` or the one that
    // arrived cannot be read.
    std::optional<LaunchRecord> WaitForRecord(
        std::chrono::milliseconds timeout = std::chrono::seconds(5)) const;

    // Removes the record of an earlier start, so that the next wait sees only a new one.
    void ForgetRecord() const;

private:
    std::string m_path;
};
