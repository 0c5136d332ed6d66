#include "support/FakeUserInterface.h"

int FakeUserInterface::MsgBox(const std::string& prompt, int style) {
    messages.push_back({prompt, style});
    if (answers.empty())
        return vbOK;
    int answer = answers.front();
    answers.pop_front();
    return answer;
}
