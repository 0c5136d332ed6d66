#include "support/FakePlatform.h"

#include <fstream>

#include "platform/NativePath.h"

int32_t FakePlatform::ShellExec(int64_t owner, const std::string& verb, const std::string& file,
                                const std::string& parameters, const std::string& directory,
                                int32_t showCommand) {
    calls.push_back({owner, verb, file, parameters, directory, showCommand});
    return shellResult;
}

std::string FakePlatform::SpecialFolder(int32_t csidl) {
    const auto found = specialFolders.find(csidl);
    return found != specialFolders.end() ? found->second : std::string();
}

bool FakePlatform::CreateNamedMutex(const std::string& name) {
    mutexes.push_back(name);
    return true;
}

bool FakePlatform::WriteShellLink(const std::string& linkFile, const ShellLink& link) {
    if (linksFail)
        return false;
    std::ofstream file(platform::PathOf(linkFile), std::ios::binary | std::ios::trunc);
    file << link.target;
    if (!file.flush())
        return false;
    links[linkFile] = link;
    return true;
}

std::optional<ShellLink> FakePlatform::ReadShellLink(const std::string& linkFile) {
    const auto found = links.find(linkFile);
    return found != links.end() ? std::optional<ShellLink>(found->second) : std::nullopt;
}
