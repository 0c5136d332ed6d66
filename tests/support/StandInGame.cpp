#include "support/StandInGame.h"

#include <thread>

#include "platform/FileSystem.h"
#include "platform/NativePath.h"

namespace fs = std::filesystem;

namespace {

constexpr std::chrono::milliseconds kPollPause{20};

// The record's fields, each ended by a NUL: the directory, then the arguments.
std::optional<LaunchRecord> ParseRecord(const std::string& text) {
    if (text.empty() || text.back() != '\0')
        return std::nullopt;
    LaunchRecord record;
    std::size_t start = text.find('\0') + 1;
    record.directory = text.substr(0, start - 1);
    for (std::size_t end; (end = text.find('\0', start)) != std::string::npos; start = end + 1)
        record.arguments.push_back(text.substr(start, end - start));
    return record;
}

}  // namespace

StandInGame::StandInGame(const fs::path& folder, const std::string& name)
    : m_path(platform::TextOf(folder / platform::PathOf(name))) {
    fs::create_directories(folder);
    const fs::path installed = platform::PathOf(m_path);
    fs::copy_file(PAVONEL_STANDIN_GAME, installed, fs::copy_options::overwrite_existing);
    fs::permissions(installed, fs::perms::owner_all, fs::perm_options::add);
}

std::string StandInGame::RecordPath() const {
    return platform::TextOf(platform::PathOf(m_path).parent_path() / "launch-record.txt");
}

std::optional<LaunchRecord> StandInGame::WaitForRecord(std::chrono::milliseconds timeout) const {
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    for (;;) {
        if (const std::optional<platform::FileContent> record = platform::ReadFile(RecordPath()))
            return ParseRecord(record->bytes);
        if (std::chrono::steady_clock::now() >= deadline)
            return std::nullopt;
        std::this_thread::sleep_for(kPollPause);
    }
}

void StandInGame::ForgetRecord() const {
    fs::remove(platform::PathOf(RecordPath()));
}
