// The confirmation shown before the game starts: the command line it will get, a warning about the
// resolution, and the choice to skip this window from now on.
#pragma once

#include <QDialog>
#include <string>

class QCheckBox;
class QLabel;
class QPushButton;
class Profile;

class frmStartingTarvolin : public QDialog {
    Q_OBJECT

public:
    explicit frmStartingTarvolin(QWidget* parent = nullptr);

    void InitDialog(const Profile& oProfile);

    // True unless the window was left with OK.
    bool Cancel() const { return m_cancel; }

    void TranslateDialog();
    std::string TranslateDialogItem(const std::string& key) const;

private slots:
    void cmdOk_Click();
    void cmdCancel_Click();

private:
    QWidget* CreateButtonRow();

    QLabel* lblCaption;
    QLabel* lblInfo;
    QLabel* lblWarning;
    QCheckBox* ckDontShowThisDialogAgain;
    QPushButton* cmdOk;
    QPushButton* cmdCancel;
    bool m_cancel = true;
};
