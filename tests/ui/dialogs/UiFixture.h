// The widget tests' program folder: the AppFixture's fakes, program-wide objects and language files, and a Qt
// user interface whose modal windows the test answers instead of a person.
#pragma once

#include <QDialog>
#include <functional>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "support/AppFixture.h"
#include "translate/cTranslate.h"
#include "ui/QtText.h"
#include "ui/QtUserInterface.h"

// Runs `answer` where the modal loop would start; a window nobody answers ends as if it was cancelled.
class ScriptedQtUserInterface : public QtUserInterface {
public:
    std::function<void(QDialog&)> answer;
    int modalWindows = 0;

protected:
    void RunModal(QDialog& dialog) override {
        ++modalWindows;
        if (answer)
            answer(dialog);
    }
};

class UiFixture : public AppFixture {
protected:
    UiFixture() { InstallUserInterface(&qtUi); }
    ~UiFixture() override { InstallUserInterface(&ui); }

    ScriptedQtUserInterface qtUi;
};
