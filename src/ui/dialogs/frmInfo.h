// The about box: the program's name and version, what it does, thanks, and the maker's web page and e-mail
// address, on three pages behind a row of tabs.
#pragma once

#include <array>

#include "ui/dialogs/ModalDialog.h"

class QLabel;
class QPushButton;
class ucTab;
class ucTabArea;

class frmInfo : public ModalDialog {
    Q_OBJECT

public:
    static constexpr int kPageCount = 3;

    explicit frmInfo(QWidget* parent = nullptr);

    void InitDialog();
    void TranslateDialog() override;

    // Activates tab `index` and shows its page.
    void ucTab1_Click(int index);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* CreateInfoPage();
    QWidget* CreateCreditsPage();
    QWidget* CreateContactPage();
    void PlacePages();

    std::array<ucTab*, kPageCount> ucTab1{};
    ucTabArea* Shape1 = nullptr;
    std::array<QWidget*, kPageCount> picPage{};
    QWidget* tabHost = nullptr;
    QLabel* lblProgram = nullptr;
    QLabel* lblDescription = nullptr;
    QLabel* lblCredits = nullptr;
    QLabel* lblWebpage = nullptr;
    QLabel* lblWebpageLink = nullptr;
    QLabel* lblEmail = nullptr;
    QLabel* lblEmailLink = nullptr;
    QPushButton* cmdClose = nullptr;
};
