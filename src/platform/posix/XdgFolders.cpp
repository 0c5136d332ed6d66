#include "platform/posix/XdgFolders.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string_view>

#include "base/mString.h"

namespace platform {

namespace {

constexpr std::string_view kDesktopKey = "XDG_DESKTOP_DIR=";

std::string AbsoluteVariable(const char* name) {
    const char* value = std::getenv(name);
    if (value == nullptr || value[0] != '/')
        return {};
    return value;
}

// $HOME, else the home folder of the user's account entry; "" when neither is known.
std::string HomeDirectory() {
    const std::string home = AbsoluteVariable("HOME");
    if (!home.empty())
        return home;
    const passwd* account = getpwuid(getuid());
    if (account == nullptr || account->pw_dir == nullptr || account->pw_dir[0] != '/')
        return {};
    return account->pw_dir;
}

// Keeps the root itself; "/home/me/" and "/home/me" are the same folder.
std::string WithoutTrailingSlash(std::string path) {
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path;
}

// `rest` is empty or starts with "/"; a home folder that is the root itself gives no doubled slash.
std::string InHome(std::string home, const std::string& rest) {
    while (!home.empty() && home.back() == '/')
        home.pop_back();
    const std::string joined = WithoutTrailingSlash(home + rest);
    return joined.empty() ? std::string("/") : joined;
}

std::string UnderHome(const std::string& relative) {
    const std::string home = HomeDirectory();
    return home.empty() ? std::string() : InHome(home, "/" + relative);
}

// The file is a shell fragment: a value is double-quoted, and a backslash protects the next character.
std::string Unquote(std::string_view value) {
    if (value.size() < 2 || value.front() != '"' || value.back() != '"')
        return std::string(value);
    value = value.substr(1, value.size() - 2);
    std::string result;
    for (size_t i = 0; i < value.size(); ++i) {
        if (value[i] == '\\' && i + 1 < value.size())
            ++i;
        result += value[i];
    }
    return result;
}

std::string ExpandHome(const std::string& value, const std::string& home) {
    for (const std::string_view prefix : {std::string_view("$HOME"), std::string_view("${HOME}")}) {
        if (value.compare(0, prefix.size(), prefix) != 0)
            continue;
        const std::string rest = value.substr(prefix.size());
        if (rest.empty() || rest.front() == '/')
            return home.empty() ? std::string() : InHome(home, rest);
    }
    return value;
}

std::string_view Trimmed(std::string_view line) {
    return mString::TrimView(line, " \t\r");
}

// Reads XDG_DESKTOP_DIR from the text of a user-dirs.dirs file; "" when it holds no usable assignment.
std::string DesktopDirectoryFromUserDirs(const std::string& text, const std::string& home) {
    std::istringstream lines(text);
    std::string line;
    std::string desktop;
    while (std::getline(lines, line)) {
        const std::string_view trimmed = Trimmed(line);
        if (trimmed.substr(0, kDesktopKey.size()) != kDesktopKey)
            continue;
        const std::string value = ExpandHome(Unquote(trimmed.substr(kDesktopKey.size())), home);
        if (!value.empty() && value.front() == '/')
            desktop = WithoutTrailingSlash(value);
    }
    return desktop;
}

}  // namespace

std::string XdgConfigHome() {
    const std::string config = AbsoluteVariable("XDG_CONFIG_HOME");
    return config.empty() ? UnderHome(".config") : WithoutTrailingSlash(config);
}

std::string XdgDataHome() {
    const std::string data = AbsoluteVariable("XDG_DATA_HOME");
    return data.empty() ? UnderHome(".local/share") : WithoutTrailingSlash(data);
}

std::string XdgDesktopDirectory() {
    const std::string config = XdgConfigHome();
    if (!config.empty()) {
        std::ifstream file(config + "/user-dirs.dirs", std::ios::binary);
        std::ostringstream text;
        text << file.rdbuf();
        const std::string desktop = DesktopDirectoryFromUserDirs(text.str(), HomeDirectory());
        if (!desktop.empty())
            return desktop;
    }
    return UnderHome("Desktop");
}

}  // namespace platform
