#include "support/FakeUserInterface.h"

#include "profiles/Profile.h"

namespace {

template <class T>
T Next(std::deque<T>& script, T whenOut) {
    if (script.empty())
        return whenOut;
    T answer = std::move(script.front());
    script.pop_front();
    return answer;
}

}  // namespace

int FakeUserInterface::MsgBox(const std::string& prompt, int style) {
    messages.push_back({prompt, style});
    return Next(answers, static_cast<int>(vbOK));
}

OpenFileAnswer FakeUserInterface::ChooseFileToOpen(const OpenFileOptions& options) {
    fileRequests.push_back(options);
    return Next(fileAnswers, OpenFileAnswer{});
}

std::string FakeUserInterface::ChooseFileToSave(const OpenFileOptions& options) {
    saveRequests.push_back(options);
    return Next(saveAnswers, std::string());
}

std::string FakeUserInterface::ChooseFolder(int64_t /*owner*/, const std::string& title,
                                            const std::string& rootFolder) {
    folderRequests.push_back(title + "|" + rootFolder);
    return folderAnswer;
}

bool FakeUserInterface::ShowEditProfileDialog(int32_t editMode, Profile& profile) {
    return editProfile ? editProfile(editMode, profile) : false;
}

Profile* FakeUserInterface::ShowLoadProfileDialog() {
    ++loadProfileDialogs;
    return loadProfile ? loadProfile() : nullptr;
}

bool FakeUserInterface::ShowStartTarvolinDialog(Profile& profile) {
    startDialogs.push_back(profile.GetCmdLineParameters());
    return Next(startAnswers, true);
}
