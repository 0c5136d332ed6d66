// A UserInterface that records every message box and error report and answers from a script.
#pragma once

#include <deque>
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

    std::vector<ShownMessage> messages;
    std::vector<ErrorReport> reports;
    // The buttons the next message boxes are answered with; OK once the script runs out.
    std::deque<int> answers;
};
