// The shortcut wizard: six pages that lead to a shortcut starting the game, plainly or with the active
// profile's command line as it was when the wizard opened: the program (1), the mode (2), where the shortcut
// goes (3), its folder (4), its name (5, where Next creates it) and the end (6, where Next starts over on
// page 2 with everything kept). A page is checked whenever it is left, backwards too.
#pragma once

#include <QString>
#include <array>
#include <cstdint>
#include <string>

#include "shortcuts/ShortcutWizard.h"
#include "ui/dialogs/ModalDialog.h"

class Profile;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QStackedWidget;
class ucPath;
class ucWizard_Nav;
class ucWizard_TitleArea;

class frmCreateTarvolinShortcut_New : public ModalDialog {
    Q_OBJECT

public:
    static constexpr int kPages = ShortcutWizard::kPages;

    explicit frmCreateTarvolinShortcut_New(QWidget* parent = nullptr);

    void InitDialog(const Profile& profile);
    void TranslateDialog() override;

private:
    // Building the pages (frmCreateTarvolinShortcut_New.cpp).
    QWidget* NewPage(int index);
    void CreateTargetPage();
    void CreateModePage();
    void CreateDestinationPage();
    void CreateFolderPage();
    void CreateNamePage();
    void CreateDonePage();
    void ConnectControls();

    // What the pages do (frmCreateTarvolinShortcut_NewSteps.cpp).
    void SetDefaultLinkName();
    void cmdSelLinkDestFolder_Click();
    void opDest_Click(int index);
    void cmdSelFolder_Click();
    void ckCreateFurtherShortcut_Click();
    void ucWizard_Nav_ShowPage(int16_t pageNo);
    void ucWizard_Nav_LeavePage(int16_t pageNo, bool* cancel);
    void ucWizard_Nav_NextClicked(int16_t pageNo, bool* cancel);
    void ucWizard_Nav_CancelClicked();
    ShortcutWizard::Fields Fields() const;

    ShortcutWizard m_rules;

    ucWizard_TitleArea* titleArea;
    QStackedWidget* pages;
    std::array<QWidget*, kPages> picStep{};
    ucWizard_Nav* nav;
    QLabel* lblWizardInfo;
    QLabel* lblShortcutTo;
    ucPath* txtDest;
    QPushButton* cmdSelLinkDestFolder;
    std::array<QRadioButton*, 2> opMode{};
    QLabel* lblSettingsInfo;
    QPlainTextEdit* txtSettings;
    std::array<QRadioButton*, ShortcutWizard::kDestinations> opDest{};
    QLabel* lblShortcutFolder;
    ucPath* txtDestFolder;
    QPushButton* cmdSelFolder;
    QLabel* lblShortcutName;
    QLineEdit* txtLinkName;
    QLabel* lblShortcutNameExample;
    QLabel* lblFinished;
    QCheckBox* ckCreateFurtherShortcut;
};
