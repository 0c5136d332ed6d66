#include "winui/main/frmMain.h"

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/UserInterface.h"
#include "app/mMain.h"
#include "error/mError.h"
#include "mainwindow/frmMainCommands.h"
#include "mainwindow/frmMainRules.h"
#include "profiles/Profile.h"
#include "resource.h"
#include "translate/cTranslate.h"
#include "winui/WinText.h"
#include "winui/controls/ucTab.h"
#include "winui/main/DisplayPage.h"
#include "winui/main/Pages.h"

namespace {

// Where a page lies inside the tab area: 6 from the left and right, 10 from the top, 7 from the bottom.
constexpr int kPageLeft = 6;
constexpr int kPageTop = 10;
constexpr int kPageWidthLoss = 12;
constexpr int kPageHeightLoss = 17;

// Puts the focus into the control in wParam.
constexpr UINT kFocusLater = WM_APP + 1;

}  // namespace

frmMain::frmMain() : Dialog("frmMain") {
    auto changed = [this](const char* trail) { ControlChanged(trail); };
    auto pressed = [this](int id) { RunCommand(id); };
    m_game = std::make_unique<GamePage>(changed, pressed);
    m_scenario = std::make_unique<ScenarioPage>(changed, pressed);
    m_display = std::make_unique<DisplayPage>(
        changed, pressed, [this](const char* key, HWND focus) { TellCorrection(key, focus); });
    m_refresh = std::make_unique<RefreshPage>(changed, pressed);
    m_extra = std::make_unique<ExtraPage>(changed, pressed);
    picPage = {nullptr, m_game.get(), m_scenario.get(), m_display.get(), m_refresh.get(), m_extra.get()};
}

frmMain::~frmMain() = default;

void frmMain::Create() {
    Dialog::Create(IDD_frmMain, nullptr);
}

// The first page is made with the window; the others when they are first shown.
void frmMain::OnInit() {
    HICON icon = LoadIconA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDI_PAVONEL));
    SendMessageA(Handle(), WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(icon));
    SendMessageA(Handle(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(icon));
    m_tabs.Attach(Handle());
    picPage[1]->Create(Handle());
    PlaceInTabOrder(*picPage[1]);
    // The layout is the room inside the window; the menu bar takes its height from there unless the
    // window grows by it.
    RECT before{};
    GetClientRect(Handle(), &before);
    CreateMenus();
    RECT inside{};
    GetClientRect(Handle(), &inside);
    RECT outside{};
    GetWindowRect(Handle(), &outside);
    SetWindowPos(Handle(), nullptr, 0, 0, outside.right - outside.left,
                 outside.bottom - outside.top + before.bottom - inside.bottom, SWP_NOMOVE | SWP_NOZORDER);
}

// The menus are made with their texts, the language and accessories menus with them.
void frmMain::InitDialog() try {
    TranslateDialog();
    ucTab1_Click(0);
} catch (...) {
    mError::PassOn("frmMain.InitDialog");
}

void frmMain::ucTab1_Click(int index) try {
    m_tabs.Select(index);
    ActivatePage(index + 1);
} catch (...) {
    mError::ShowError("frmMain.ucTab1_Click");
}

// A page stands right after the tabs in the tab order (only the shown one is reached) and above the tab
// area, which is drawn beneath it.
void frmMain::PlaceInTabOrder(MainPage& page) {
    SetWindowPos(page.Handle(), Item(IDC_ucTab1_0 + kTabCount - 1), 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

// Making a window's controls is most of its start under Wine, and the pages behind the first are made only
// when they are first shown. Until then the values shown on them are kept; made, a page shows them, takes
// its captions (its letters were kept for it) and fills what it lists.
void frmMain::MakePage(int page) {
    if (picPage[page]->Made())
        return;
    const MainWindowValues values = Values();
    picPage[page]->Create(Handle());
    PlaceInTabOrder(*picPage[page]);
    TranslatePages();
    picPage[page]->ShowValues(values);
    if (picPage[page] == m_scenario.get()) {
        m_scenario->FillDatenPakList(values.tarvolinPath);
        m_scenario->FillScenarioFilesList(values.tarvolinPath);
    } else if (picPage[page] == m_display.get()) {
        m_display->ShowPreview();
    }
}

void frmMain::ActivatePage(int page) try {
    MakePage(page);
    const RECT area = ucTab::PlaceInParent(Item(IDC_Shape1));
    const HWND focus = GetFocus();
    for (int i = 1; i <= kTabCount; ++i) {
        const HWND window = picPage[i]->Handle();
        if (i != page) {
            if (focus != nullptr && IsChild(window, focus))
                SetFocus(m_tabs.Tab(m_tabs.Active()));
            ShowWindow(window, SW_HIDE);
            continue;
        }
        const int left = ucTab::Scaled(Handle(), kPageLeft);
        const int top = ucTab::Scaled(Handle(), kPageTop);
        MoveWindow(window, area.left + left, area.top + top,
                   area.right - area.left - ucTab::Scaled(Handle(), kPageWidthLoss),
                   area.bottom - area.top - ucTab::Scaled(Handle(), kPageHeightLoss), TRUE);
        ShowWindow(window, SW_SHOW);
    }
} catch (...) {
    mError::PassOn("frmMain.ActivatePage");
}

bool frmMain::TranslateKeys(const MSG& message) {
    if (message.message != WM_KEYDOWN || (GetKeyState(VK_CONTROL) & 0x8000) == 0)
        return false;
    if (message.hwnd != Handle() && !IsChild(Handle(), message.hwnd))
        return false;
    const bool shift = (GetKeyState(VK_SHIFT) & 0x8000) != 0;
    int step = 0;
    if (message.wParam == VK_TAB)
        step = shift ? -1 : 1;
    else if (message.wParam == VK_NEXT || message.wParam == VK_PRIOR)
        step = message.wParam == VK_NEXT ? 1 : -1;
    if (step == 0)
        return false;
    ucTab1_Click((m_tabs.Active() + step + kTabCount) % kTabCount);
    return true;
}

MainWindowValues frmMain::Values() const {
    MainWindowValues values = m_shown;
    for (int i = 1; i <= kTabCount; ++i) {
        if (picPage[i]->Made())
            picPage[i]->HandBack(values);
    }
    return values;
}

bool frmMain::LoadData(Profile& profile) try {
    App().SetActiveProfile(&profile);
    frmMainCommands::AskForMissingGame(profile);
    const MainWindowValues values = frmMainRules::ValuesOf(profile);
    m_shown = values;
    for (int i = 1; i <= kTabCount; ++i) {
        if (picPage[i]->Made())
            picPage[i]->ShowValues(values);
    }
    if (m_scenario->Made()) {
        m_scenario->FillDatenPakList(values.tarvolinPath);
        m_scenario->FillScenarioFilesList(values.tarvolinPath);
    }
    FillProfileList();
    // The preview shows the loaded choice, and the standard mode is chosen with it, as it always was.
    if (m_display->Made())
        m_display->lstResolution_Click();
    else
        m_shown.standardResolution = true;
    UpdateVersionLabels();
    ShowCommandLine();
    return true;
} catch (...) {
    mError::PassOn("frmMain.LoadData");
}

void frmMain::RefreshProfileData() try {
    // A page not made yet shows what was loaded, which needs no correction.
    if (m_display->Made())
        m_display->CorrectInput();
    frmMainCommands::WriteBack(Values(), *App().ActiveProfile());
} catch (...) {
    mError::PassOn("frmMain.RefreshProfileData");
}

platform::WriteFault frmMain::SaveData() try {
    RefreshProfileData();
    return App().SaveData();
} catch (...) {
    mError::PassOn("frmMain.SaveData");
}

std::string frmMain::GetCmdLineParameters() const {
    return frmMainRules::GetCmdLineParameters(Values());
}

// Shows the display page and says what was corrected. The focus moves once the field that is losing it has
// let it go, as dialogs move it.
void frmMain::TellCorrection(const char* key, HWND focus) {
    ucTab1_Click(2);
    Ui().MsgBox(Translator().TranslateEx("MAIN_DIALOG", key), vbOKOnly);
    if (focus != nullptr)
        PostMessageA(Handle(), kFocusLater, reinterpret_cast<WPARAM>(focus), 0);
}

// Every edit that changes the command line shows it anew; a failure is reported under the control's name.
void frmMain::ControlChanged(const char* trail) {
    mError::AsEntryPoint(trail, [this] { ShowCommandLine(); });
}

void frmMain::ShowCommandLine() {
    WinText::SetItem(Handle(), IDC_txtCommandLine, GetCmdLineParameters());
}

void frmMain::TranslateDialog() try {
    const cTranslate::Batch texts;
    TranslatePages();
    TranslateMenus();
    UpdateVersionLabels();
    m_tabs.Place();
    InvalidateRect(Handle(), nullptr, TRUE);
} catch (...) {
    mError::PassOn("frmMain.TranslateDialog");
}

// The pages share the keys of the whole window: every label and button gets its own letter, and the menu
// bar's letters are taken first, so that no caption of a page competes with a menu.
void frmMain::TranslatePages() {
    for (int i = 0; i < kTabCount; ++i)
        WinText::SetItem(Handle(), IDC_ucTab1_0 + i, MainPage::Text(frmMainRules::kTabKeys[i]));
    Mnemonics keys = WinText::KeySet();
    for (const char* menu : frmMainRules::kMenuKeys)
        keys.Add(MainPage::Text(menu));
    WinText::SetItem(Handle(), IDC_cmdStart, keys.Add(MainPage::Text("BTN_START_TARVOLIN")));
    for (int i = 1; i <= kTabCount; ++i)
        picPage[i]->Retranslate(keys);
}

void frmMain::UpdateVersionLabels() try {
    const Profile* active = App().ActiveProfile();
    const std::string game =
        mMain::GetTarvolinFile_VersionInfo(active != nullptr ? active->TarvolinPath() : "");
    WinText::SetItem(Handle(), IDC_lblVersion,
                     frmMainRules::VersionLine(Translator().TranslateEx("GLOBAL", "WITH"), game));
    WinText::Set(Handle(), kProgramTitle);
} catch (...) {
    mError::PassOn("frmMain.UpdateVersionLabels");
}

std::optional<INT_PTR> frmMain::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_DRAWITEM:
            return m_tabs.Draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        case kFocusLater:
            SetFocus(reinterpret_cast<HWND>(wParam));
            return TRUE;
        case WM_INITMENUPOPUP:
            if (reinterpret_cast<HMENU>(wParam) == mnuFile_Profiles)
                ShowProfileList();
            return std::nullopt;
        case WM_CLOSE:
            Form_QueryUnloadAndClose();
            return TRUE;
        case WM_DESTROY:
            PostQuitMessage(0);
            return FALSE;
        case WM_DPICHANGED:
            m_tabs.Place();
            ActivatePage(m_tabs.Active() + 1);
            return std::nullopt;
        default:
            return std::nullopt;
    }
}
