#include "support/StandInGame.h"

#include <cctype>
#include <fstream>
#include <sstream>
#include <string_view>
#include <thread>
#include <utility>

#include "platform/NativePath.h"

namespace fs = std::filesystem;

namespace {

constexpr std::chrono::milliseconds kPollPause{20};

// Undoes the stand-in's escapes ("\\", "\n", "\r"); nothing for any other backslash sequence.
std::optional<std::string> Unescaped(std::string_view line) {
    std::string text;
    for (size_t i = 0; i < line.size(); ++i) {
        if (line[i] != '\\') {
            text += line[i];
            continue;
        }
        if (++i == line.size())
            return std::nullopt;
        switch (line[i]) {
            case '\\':
                text += '\\';
                break;
            case 'n':
                text += '\n';
                break;
            case 'r':
                text += '\r';
                break;
            default:
                return std::nullopt;
        }
    }
    return text;
}

std::optional<size_t> Count(const std::string& line) {
    if (line.empty() || line.size() > 6)
        return std::nullopt;
    for (const char c : line) {
        if (std::isdigit(static_cast<unsigned char>(c)) == 0)
            return std::nullopt;
    }
    return static_cast<size_t>(std::stoul(line));
}

// The lines of a text that ends with a line feed.
std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    size_t start = 0;
    for (size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', start)) {
        lines.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

std::optional<std::string> ReadWhole(const std::string& path) {
    std::ifstream in(platform::PathOf(path), std::ios::binary);
    if (!in)
        return std::nullopt;
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
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
        if (const std::optional<std::string> text = ReadWhole(RecordPath()))
            return ParseRecord(*text);
        if (std::chrono::steady_clock::now() >= deadline)
            return std::nullopt;
        std::this_thread::sleep_for(kPollPause);
    }
}

void StandInGame::ForgetRecord() const {
    fs::remove(platform::PathOf(RecordPath()));
}

std::optional<LaunchRecord> StandInGame::ParseRecord(const std::string& text) {
    if (text.empty() || text.back() != '\n')
        return std::nullopt;
    const std::vector<std::string> lines = Lines(text);
    const std::optional<size_t> count = lines.size() >= 2 ? Count(lines[1]) : std::nullopt;
    if (!count || lines.size() != *count + 2)
        return std::nullopt;
    LaunchRecord record;
    const std::optional<std::string> directory = Unescaped(lines[0]);
    if (!directory)
        return std::nullopt;
    record.directory = *directory;
    for (size_t i = 2; i < lines.size(); ++i) {
        std::optional<std::string> argument = Unescaped(lines[i]);
        if (!argument)
            return std::nullopt;
        record.arguments.push_back(std::move(*argument));
    }
    return record;
}
