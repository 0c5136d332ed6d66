#include "shortcuts/cWizardNav.h"

#include "app/PublicObjects.h"
#include "translate/cTranslate.h"

cWizardNav::Captions cWizardNav::Translated() {
    const cTranslate& texts = Translator();
    return {texts.TranslateEx("GLOBAL", "BTN_CANCEL"), "< " + texts.TranslateEx("GLOBAL", "BTN_BACK"),
            texts.TranslateEx("GLOBAL", "BTN_NEXT") + " >"};
}

void cWizardNav::SetPageCount(int16_t value) {
    m_pageCount = value;
    Refresh();
}

void cWizardNav::ShowPage(int16_t pageNo) {
    m_curPageNo = pageNo;
    m_host.OnPageShowing(pageNo);
    Refresh();
}

void cWizardNav::Next() {
    bool cancel = false;
    m_host.OnLeavePage(m_curPageNo, cancel);
    if (cancel)
        return;
    m_host.OnNextClicked(static_cast<int16_t>(m_curPageNo + 1), cancel);
    if (!cancel)
        ShowPage(static_cast<int16_t>(m_curPageNo + 1));
}

void cWizardNav::Back() {
    bool cancel = false;
    m_host.OnLeavePage(m_curPageNo, cancel);
    if (cancel)
        return;
    m_host.OnBackClicked(static_cast<int16_t>(m_curPageNo - 1), cancel);
    if (!cancel)
        ShowPage(static_cast<int16_t>(m_curPageNo - 1));
}

void cWizardNav::Refresh() {
    m_host.OnRefreshButtons(m_curPageNo >= 2, m_curPageNo < m_pageCount);
}
