// A UserInterface that records every message box, report and window it is asked for, and answers from a
// script that the test sets up beforehand.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "app/UserInterface.h"

struct ShownMessage {
    std::string prompt;
    int style;
};

class FakeUserInterface : public UserInterface {
public:
    int MsgBox(const std::string& prompt, int style) override;
    void ShowErrorReport(const ErrorReport& report) override { reports.push_back(report); }
    OpenFileAnswer ChooseFileToOpen(const OpenFileOptions& options) override;
    std::string ChooseFolder(int64_t owner, const std::string& title, const std::string& rootFolder) override;
    std::string ChooseFileToSave(const OpenFileOptions& options) override;
    void SetClipboardText(const std::string& text) override { clipboard = text; }
    std::string GetClipboardText() override { return clipboard; }
    bool ShowEditProfileDialog(int32_t editMode, Profile& profile) override;
    Profile* ShowLoadProfileDialog() override;
    void ShowSaveDialog() override { ++saveDialogs; }
    bool ShowStartTarvolinDialog(Profile& profile) override;

    std::vector<ShownMessage> messages;
    std::vector<ErrorReport> reports;
    // The buttons the next message boxes are answered with; OK once the script runs out.
    std::deque<int> answers;

    // The file chooser's requests, and its answers: cancelled once the script runs out.
    std::vector<OpenFileOptions> fileRequests;
    std::deque<OpenFileAnswer> fileAnswers;

    // The folder chooser's requests as "title|root", and its answer.
    std::vector<std::string> folderRequests;
    std::string folderAnswer;

    // The save chooser's requests, and its answers: cancelled once the script runs out.
    std::vector<OpenFileOptions> saveRequests;
    std::deque<std::string> saveAnswers;

    std::string clipboard;

    // The edit dialog: called with the mode and profile; cancelled when not set.
    std::function<bool(int32_t, Profile&)> editProfile;
    // The profile chooser's answer (nullptr: cancelled), and how often it was shown.
    std::function<Profile*()> loadProfile;
    int loadProfileDialogs = 0;
    int saveDialogs = 0;

    // The start confirmation: the command lines it showed, and its answers (go ahead when the script is out).
    std::vector<std::string> startDialogs;
    std::deque<bool> startAnswers;
};
