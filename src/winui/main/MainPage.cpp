#include "winui/main/MainPage.h"

#include <windowsx.h>

#include "app/PublicObjects.h"
#include "translate/cTranslate.h"
#include "winui/WinText.h"
#include "winui/controls/ucTab.h"

MainPage::MainPage(int layout, ValueChanged changed, ButtonPressed pressed)
    : Dialog("frmMain"), m_layout(layout), m_changed(std::move(changed)), m_pressed(std::move(pressed)) {}

void MainPage::Create(HWND parent) {
    Dialog::Create(m_layout, parent);
}

void MainPage::ShowValues(const MainWindowValues&) {}

void MainPage::HandBack(MainWindowValues&) const {}

std::string MainPage::Text(const char* key) {
    return Translator().TranslateEx("MAIN_DIALOG", key);
}

void MainPage::OnCommand(int id, int code) {
    if (code == BN_CLICKED && (GetWindowLongA(Item(id), GWL_STYLE) & BS_TYPEMASK) <= BS_DEFPUSHBUTTON)
        Pressed(id);
}

std::optional<INT_PTR> MainPage::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return ucTab::PageColours(message, wParam, lParam);
}

void MainPage::SetCaption(int id, Mnemonics& keys, const std::string& text) {
    WinText::SetItem(Handle(), id, keys.Add(text));
}

void MainPage::FillList(int id, const char* prefix) {
    constexpr int kEntries = 5;
    const HWND list = Item(id);
    const int selected = ListBox_GetCurSel(list);
    ListBox_ResetContent(list);
    for (int i = 1; i <= kEntries; ++i)
        ListBox_AddString(list, Text((prefix + std::to_string(i)).c_str()).c_str());
    ListBox_SetCurSel(list, selected);
}
