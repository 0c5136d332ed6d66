// The error report window: the failure's description, the report a user sends to the maker, and the way
// to send it. It works before the application object and the translation engine exist (a failure at
// start-up); its texts are then the English ones.
#pragma once

#include "app/UserInterface.h"
#include "ui/dialogs/ModalDialog.h"

class QLabel;
class QPlainTextEdit;
class QPushButton;
class QStackedWidget;
class QTabBar;
class QVBoxLayout;

class frmError : public ModalDialog {
    Q_OBJECT

public:
    // The pages behind the tab strip.
    enum Page { kReportPage = 0, kContactPage = 1 };

    explicit frmError(QWidget* parent = nullptr);

    void InitDialog(const ErrorReport& report);

    // Brings the page `index` (a Page) into view.
    void ActivatePage(int index);

private slots:
    void cmdClose_Click();
    void cmdContact_Click();
    void cmdCopy_Click();
    void cmdDetails_Click();
    void Command1_Click();
    void TabStrip1_Click(int index);

private:
    QWidget* CreateHeader();
    QVBoxLayout* CreateTabbedPages();
    QWidget* CreateReportPage();
    QWidget* CreateContactPage();
    QWidget* CreateButtonRow();
    void SetTabOrder();
    void TranslateDialog() override;
    // The text of `key` in the window's section, or `english` while there is nothing to translate with.
    QString DialogText(const char* key, const char* english) const;
    void ShowPage(Page page);

    ErrorReport m_report;

    QLabel* lblIcon;
    QLabel* lblDescription;
    QPlainTextEdit* txtDescription;
    QTabBar* TabStrip1;
    QStackedWidget* pages;
    QLabel* lblNote;
    QPlainTextEdit* txtErrorNote;
    QPushButton* cmdContact;
    QLabel* lblContactInfo;
    QLabel* lblAddress;
    QPushButton* cmdDetails;
    QPushButton* cmdCopy;
    QPushButton* Command1;
    QPushButton* cmdClose;
};
