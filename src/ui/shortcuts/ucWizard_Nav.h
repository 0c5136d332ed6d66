// A wizard's button bar: Back, Next and Cancel at its right end between two rules. Its pages move as
// cWizardNav moves them, and its host hears of every move through the signals.
#pragma once

#include <QString>
#include <QWidget>
#include <cstdint>

#include "shortcuts/cWizardNav.h"

class HLine;
class QPushButton;

class ucWizard_Nav : public QWidget, private cWizardNav::Host {
    Q_OBJECT

public:
    explicit ucWizard_Nav(QWidget* parent = nullptr);

    int16_t PageCount() const { return m_nav.PageCount(); }
    void SetPageCount(int16_t value);
    int16_t CurPageNo() const { return m_nav.CurPageNo(); }

    // Makes `pageNo` the page shown: raises PageShowing, then refreshes the buttons.
    void ShowPage(int16_t pageNo);
    void InitControl();
    // The buttons' texts from the language files: Cancel, "< Back", "Next >", each with its Alt+letter.
    void Translate();

    QString NextButtonCaption() const;
    void SetNextButtonCaption(const QString& value);
    QString CancelButtonCaption() const;
    void SetCancelButtonCaption(const QString& value);
    bool NextButtonEnabled() const;
    void SetNextButtonEnabled(bool value);

signals:
    void BackClicked(int16_t pageNo, bool* cancel);
    void NextClicked(int16_t pageNo, bool* cancel);
    void CancelClicked();
    void PageShowing(int16_t pageNo);
    void LeavePage(int16_t pageNo, bool* cancel);

private:
    void cmdBack_Click();
    void cmdNext_Click();
    void cmdCancel_Click();
    void OnLeavePage(int16_t pageNo, bool& cancel) override;
    void OnBackClicked(int16_t pageNo, bool& cancel) override;
    void OnNextClicked(int16_t pageNo, bool& cancel) override;
    void OnPageShowing(int16_t pageNo) override;
    void OnRefreshButtons(bool backEnabled, bool nextEnabled) override;

    HLine* Line1;
    QWidget* Picture1;
    QPushButton* cmdBack;
    QPushButton* cmdNext;
    QPushButton* cmdCancel;
    HLine* Line2;
    cWizardNav m_nav{*this};
};
