// A wizard's button bar: Back, Next and Cancel at its right end between two rules. It counts the pages and
// asks its host before every move: LeavePage for the page that is left (in either direction), then
// BackClicked or NextClicked for the page that would be shown; any of them can stop the move by setting
// the cancel flag. Back is enabled from page 2 on, Next below PageCount.
#pragma once

#include <QString>
#include <QWidget>
#include <cstdint>

class HLine;
class QPushButton;

class ucWizard_Nav : public QWidget {
    Q_OBJECT

public:
    explicit ucWizard_Nav(QWidget* parent = nullptr);

    int16_t PageCount() const { return m_pageCount; }
    void SetPageCount(int16_t value);
    int16_t CurPageNo() const { return m_curPageNo; }

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
    void RefreshNavButtons();

    HLine* Line1;
    QWidget* Picture1;
    QPushButton* cmdBack;
    QPushButton* cmdNext;
    QPushButton* cmdCancel;
    HLine* Line2;
    int16_t m_pageCount = 0;
    int16_t m_curPageNo = 0;
};
