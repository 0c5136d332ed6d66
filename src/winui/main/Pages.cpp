#include "winui/main/Pages.h"

#include <windowsx.h>

#include <vector>

#include "app/PublicObjects.h"
#include "base/mString.h"
#include "mainwindow/frmMainLists.h"
#include "resource.h"
#include "translate/cTranslate.h"
#include "winui/WinText.h"
#include "winui/controls/ucPath.h"

namespace {

// The entries of combo box `box` become `entries`; the text in its field stays, also when no entry has it.
void FillCombo(HWND box, const std::vector<std::string>& entries) {
    const std::string shown = WinText::Of(box);
    SendMessageA(box, WM_SETREDRAW, FALSE, 0);
    ComboBox_ResetContent(box);
    std::size_t bytes = 0;
    for (const std::string& entry : entries)
        bytes += entry.size() + 1;
    SendMessageA(box, CB_INITSTORAGE, entries.size(), bytes);
    for (const std::string& entry : entries)
        SendMessageA(box, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.c_str()));
    SendMessageA(box, WM_SETREDRAW, TRUE, 0);
    WinText::Set(box, shown);
}

// The row of a list for an ID counted from 1, and back; 0 stands for no selection.
void ShowId(HWND list, int id) {
    ListBox_SetCurSel(list, id - 1);
}

int IdOf(HWND list) {
    return ListBox_GetCurSel(list) + 1;
}

int CheckValue(HWND box) {
    return static_cast<int>(Button_GetCheck(box));
}

}  // namespace

GamePage::GamePage(ValueChanged changed, ButtonPressed pressed)
    : MainPage(IDD_GamePage, std::move(changed), std::move(pressed)) {}

void GamePage::OnInit() {
    ucPath::Attach(Item(IDC_txtTarvolinPath), "ucPath");
}

void GamePage::ShowValues(const MainWindowValues& values) {
    ShowTarvolinPath(values.tarvolinPath);
    Button_SetCheck(Item(IDC_ckLogMessages), values.logMessages);
    Button_SetCheck(Item(IDC_ckFreeplay), values.freeplay);
}

void GamePage::HandBack(MainWindowValues& values) const {
    values.tarvolinPath = WinText::Item(Handle(), IDC_txtTarvolinPath);
    values.logMessages = CheckValue(Item(IDC_ckLogMessages));
    values.freeplay = CheckValue(Item(IDC_ckFreeplay));
}

void GamePage::ShowTarvolinPath(const std::string& path) {
    WinText::SetItem(Handle(), IDC_txtTarvolinPath, path);
}

// A path is one line, however it came in (typed, pasted, dropped or set): the field loses its line breaks
// at once, which changes it again.
void GamePage::TarvolinPathChanged() {
    const std::string text = WinText::Item(Handle(), IDC_txtTarvolinPath);
    if (text.find_first_of("\r\n") != std::string::npos)
        WinText::SetItem(Handle(), IDC_txtTarvolinPath, mString::OneLine(text));
    else
        Changed("frmMain.txtTarvolinPath_Change");
}

void GamePage::Retranslate(Mnemonics& keys) {
    SetCaption(IDC_lblTarvoPath, keys, Text("LBL_TARVOPATH"));
    SetCaption(IDC_cmdSelectTarvoPath, keys, Translator().TranslateEx("GLOBAL", "BTN_Browse"));
    SetCaption(IDC_ckLogMessages, keys, Text("CHK_LOG"));
    SetCaption(IDC_ckFreeplay, keys, Text("CHK_FREEPLAY"));
    SetCaption(IDC_cmdLogfile2, keys, Text("BTN_DISPLAY_LOGFILE"));
    WinText::SetItem(Handle(), IDC_lblLogMsg, Text("LBL_LOG_DESC"));
    WinText::SetItem(Handle(), IDC_lblFreeplayMode_Desc, Text("LBL_FREEPLAY_DESC"));
}

void GamePage::OnCommand(int id, int code) {
    if (id == IDC_ckLogMessages && code == BN_CLICKED)
        Changed("frmMain.ckLogMessages_Click");
    else if (id == IDC_ckFreeplay && code == BN_CLICKED)
        Changed("frmMain.ckFreeplay_Click");
    else if (id == IDC_txtTarvolinPath && code == EN_CHANGE)
        TarvolinPathChanged();
    else
        MainPage::OnCommand(id, code);
}

ScenarioPage::ScenarioPage(ValueChanged changed, ButtonPressed pressed)
    : MainPage(IDD_ScenarioPage, std::move(changed), std::move(pressed)) {}

void ScenarioPage::ShowValues(const MainWindowValues& values) {
    WinText::SetItem(Handle(), IDC_txtScenario, values.scenario);
    WinText::SetItem(Handle(), IDC_txtGraphicPack, values.graphicPack);
}

void ScenarioPage::HandBack(MainWindowValues& values) const {
    values.scenario = WinText::Item(Handle(), IDC_txtScenario);
    values.graphicPack = WinText::Item(Handle(), IDC_txtGraphicPack);
}

void ScenarioPage::FillScenarioFilesList(const std::string& tarvolinPath) {
    FillCombo(Item(IDC_txtScenario), frmMainLists::ScenarioEntries(tarvolinPath));
}

void ScenarioPage::FillDatenPakList(const std::string& tarvolinPath) {
    FillCombo(Item(IDC_txtGraphicPack), frmMainLists::DatenPakEntries(tarvolinPath));
}

void ScenarioPage::Retranslate(Mnemonics& keys) {
    SetCaption(IDC_lblScenarios, keys, Text("LBL_SCENARIO_LIST"));
    SetCaption(IDC_lblGraphicPak, keys, Text("LBL_GRAPHICPAK_LIST"));
    WinText::SetItem(Handle(), IDC_lblScenarioInfo, Text("LBL_SCENARIO_LIST_INFO"));
    WinText::SetItem(Handle(), IDC_lblGraphicPakInfo, Text("LBL_GRAPHICPAK_LIST_INFO"));
}

// A chosen entry is in the field only after this notification: it is put there first, so that what
// follows reads it.
void ScenarioPage::OnCommand(int id, int code) {
    if (id != IDC_txtScenario && id != IDC_txtGraphicPack)
        return MainPage::OnCommand(id, code);
    const char* trail =
        id == IDC_txtScenario ? "frmMain.txtScenario_Change" : "frmMain.txtGraphicPack_Change";
    if (code == CBN_SELCHANGE) {
        const HWND box = Item(id);
        const int row = ComboBox_GetCurSel(box);
        std::string entry(static_cast<std::size_t>(std::max(ComboBox_GetLBTextLen(box, row), 0)) + 1, '\0');
        entry.resize(static_cast<std::size_t>(std::max(ComboBox_GetLBText(box, row, entry.data()), 0)));
        WinText::Set(box, entry);
        Changed(trail);
    } else if (code == CBN_EDITCHANGE) {
        Changed(trail);
    }
}

RefreshPage::RefreshPage(ValueChanged changed, ButtonPressed pressed)
    : MainPage(IDD_RefreshPage, std::move(changed), std::move(pressed)) {}

void RefreshPage::ShowValues(const MainWindowValues& values) {
    ShowId(Item(IDC_lstRefresh), values.refresh);
}

void RefreshPage::HandBack(MainWindowValues& values) const {
    values.refresh = IdOf(Item(IDC_lstRefresh));
}

void RefreshPage::Retranslate(Mnemonics& keys) {
    SetCaption(IDC_frmScreenRefresh, keys, Text("LBL_SCREEN_REFRESH"));
    FillList(IDC_lstRefresh, "LST_REFRESH_");
}

void RefreshPage::OnCommand(int id, int code) {
    if (id == IDC_lstRefresh && code == LBN_SELCHANGE)
        Changed("frmMain.lstRefresh_Click");
}

ExtraPage::ExtraPage(ValueChanged changed, ButtonPressed pressed)
    : MainPage(IDD_ExtraPage, std::move(changed), std::move(pressed)) {}

void ExtraPage::Retranslate(Mnemonics& keys) {
    WinText::SetItem(Handle(), IDC_frmOpenTarvoFolder, Text("LBL_TARVOFOLDER_FRAME"));
    WinText::SetItem(Handle(), IDC_frmOpenLogfile, Text("LBL_LOGFILE_FRAME"));
    WinText::SetItem(Handle(), IDC_lblOpenTarvoFolder, Text("LBL_TARVOFOLDER_FRAME_TEXT"));
    WinText::SetItem(Handle(), IDC_lblOpenLogfileDesc, Text("LBL_LOGFILE_FRAME_TEXT"));
    SetCaption(IDC_cmdOpenTarvoDir, keys, Text("BTN_OPEN_TARVOFOLDER"));
    WinText::SetItem(Handle(), IDC_cmdLogfile, keys.Again(Text("BTN_DISPLAY_LOGFILE")));
}
