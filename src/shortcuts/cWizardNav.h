// A wizard's button bar without its buttons: it counts the pages and asks its host before every move. Next
// and Back first ask LeavePage for the page that is left (in either direction), then NextClicked or
// BackClicked for the page that would be shown; any of them can stop the move by setting the cancel flag.
// Back is enabled from page 2 on, Next below PageCount. The bars of both faces (ucWizard_Nav) move through
// it.
#pragma once

#include <cstdint>
#include <string>

class cWizardNav {
public:
    class Host {
    public:
        virtual void OnLeavePage(int16_t pageNo, bool& cancel) = 0;
        virtual void OnBackClicked(int16_t pageNo, bool& cancel) = 0;
        virtual void OnNextClicked(int16_t pageNo, bool& cancel) = 0;
        // `pageNo` is the page shown now; the buttons are refreshed right after.
        virtual void OnPageShowing(int16_t pageNo) = 0;
        virtual void OnRefreshButtons(bool backEnabled, bool nextEnabled) = 0;

    protected:
        ~Host() = default;
    };

    // The three captions from the language files: Cancel, "< Back" and "Next >".
    struct Captions {
        std::string cancel;
        std::string back;
        std::string next;
    };
    static Captions Translated();

    explicit cWizardNav(Host& host) : m_host(host) {}

    int16_t PageCount() const { return m_pageCount; }
    void SetPageCount(int16_t value);
    int16_t CurPageNo() const { return m_curPageNo; }

    void ShowPage(int16_t pageNo);
    // The page number is read again after NextClicked: a host that moved the wizard itself is followed by
    // one more step.
    void Next();
    void Back();

private:
    void Refresh();

    Host& m_host;
    int16_t m_pageCount = 0;
    int16_t m_curPageNo = 0;
};
