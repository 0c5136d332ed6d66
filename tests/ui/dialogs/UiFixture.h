// The widget tests' program folder: the AppFixture's fakes, program-wide objects and language files, and the
// Qt user interface, whose modal windows the test answers instead of a person; with it come the Qt headers
// that nearly every widget test needs.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>
#include <functional>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "support/AppFixture.h"
#include "translate/cTranslate.h"
#include "ui/QtText.h"
#include "ui/QtUserInterface.h"
#include "ui/dialogs/ModalDialog.h"

// The control `name` of a window, failing the test when there is none.
template <class T = QPushButton>
T* Find(const QWidget& window, const char* name) {
    T* found = window.findChild<T*>(name);
    EXPECT_NE(found, nullptr) << name;
    return found;
}

// The rows of a window's profile list, a selected one marked with "*".
inline QStringList Captions(const QWidget& window) {
    const auto* list = Find<QTreeWidget>(window, "ListView1");
    QStringList captions;
    for (int i = 0; i < list->topLevelItemCount(); ++i)
        captions << list->topLevelItem(i)->text(0) + (list->topLevelItem(i)->isSelected() ? "*" : "");
    return captions;
}

class UiFixture : public AppFixture {
protected:
    UiFixture() {
        InstallUserInterface(&qtUi);
        // Runs `answer` where the modal loop would start; a window nobody answers ends as if cancelled.
        InstallModalRunner([this](QDialog& dialog) {
            ++modalWindows;
            if (answer)
                answer(dialog);
        });
    }
    ~UiFixture() override {
        InstallModalRunner(nullptr);
        InstallUserInterface(&ui);
    }

    QtUserInterface qtUi;
    std::function<void(QDialog&)> answer;
    int modalWindows = 0;
};
