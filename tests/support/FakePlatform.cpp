#include "support/FakePlatform.h"

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
