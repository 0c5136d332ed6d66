// The wizard's window: the title band, the six pages made from their layouts in one place, and the bar.
#include "winui/shortcuts/frmCreateTarvolinShortcut_New.h"

#include "app/PublicObjects.h"
#include "error/mError.h"
#include "resource.h"
#include "translate/cTranslate.h"
#include "winui/WinText.h"
#include "winui/controls/ucPath.h"

namespace {

// A page hands what happens on it to the wizard: its buttons, options and fields, the default button that
// Enter presses, and Escape.
INT_PTR CALLBACK PageProc(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
            SendMessageA(GetParent(page), message, wParam, lParam);
            return TRUE;
        case DM_GETDEFID:
            SetWindowLongPtrA(page, DWLP_MSGRESULT, SendMessageA(GetParent(page), message, 0, 0));
            return TRUE;
        default:
            return message == WM_INITDIALOG ? TRUE : FALSE;
    }
}

// The captions that carry an Alt+letter, in tab order: texts of the wizard's own section or of "GLOBAL".
struct Caption {
    int id;
    const char* key;
    bool global = false;
};
constexpr Caption kCaptions[] = {
    {IDC_lblShortcutTo, "LBL_SHORTCUT_TO"},
    {IDC_cmdSelLinkDestFolder, "BTN_Browse", true},
    {IDC_opMode_0, "LBL_MODE_STANDARD"},
    {IDC_opMode_0 + 1, "LBL_MODE_CURRENTPROFILE"},
    {IDC_lblSettingsInfo, "LBL_SETTINGS_INFO"},
    {IDC_opDest_0, ShortcutWizard::kDestinationKeys[0]},
    {IDC_opDest_0 + 1, ShortcutWizard::kDestinationKeys[1]},
    {IDC_opDest_0 + 2, ShortcutWizard::kDestinationKeys[2]},
    {IDC_opDest_0 + 3, ShortcutWizard::kDestinationKeys[3]},
    {IDC_lblShortcutFolder, "LBL_SHORTCUT_FOLDER"},
    {IDC_cmdSelFolder, "BTN_Browse", true},
    {IDC_lblShortcutName, "LBL_SHORTCUT_NAME"},
    {IDC_ckCreateFurtherShortcut, "CHK_CREATE_FURTHER_SHORTCUT"},
};

}  // namespace

frmCreateTarvolinShortcut_New::frmCreateTarvolinShortcut_New()
    : ModalDialog("frmCreateTarvolinShortcut_New", IDD_frmCreateTarvolinShortcut_New,
                  ShortcutWizard::kSection) {}

// Every page lies where the band ends, in the tab order before the bar's buttons.
void frmCreateTarvolinShortcut_New::MakeControls() {
    titleArea.Attach(Handle());
    nav.Attach(Handle());
    RECT band{};
    GetWindowRect(Item(IDC_TitleArea_Line1), &band);
    MapWindowPoints(nullptr, Handle(), reinterpret_cast<POINT*>(&band), 2);
    RECT units{8, 6, 0, 0};
    MapDialogRect(Handle(), &units);
    HWND after = Item(IDC_Nav_Line1);
    for (int i = 0; i < ShortcutWizard::kPages; ++i) {
        HWND page = CreateDialogParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDD_picStep_0 + i),
                                       Handle(), &PageProc, 0);
        picStep[static_cast<std::size_t>(i)] = page;
        SetWindowPos(page, after, units.left, band.bottom + units.top, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE);
        after = page;
    }
    ucPath::Attach(Control(IDC_txtDest), "txtDest");
    ucPath::Attach(Control(IDC_txtDestFolder), "txtDestFolder");
}

std::string frmCreateTarvolinShortcut_New::FieldText(int id) const {
    return WinText::Of(Control(id));
}

void frmCreateTarvolinShortcut_New::SetFieldText(int id, const std::string& text) const {
    WinText::Set(Control(id), text);
}

void frmCreateTarvolinShortcut_New::TranslateDialog() try {
    WinText::Set(Handle(), TranslateDialogItem("DIALOG_CAPTION"));
    Mnemonics keys = WinText::KeySet();
    nav.Translate(keys);
    for (const Caption& caption : kCaptions) {
        SetFieldText(caption.id, keys.Add(caption.global ? Translator().TranslateEx("GLOBAL", caption.key)
                                                         : TranslateDialogItem(caption.key)));
    }
    SetFieldText(IDC_lblWizardInfo, TranslateDialogItem("WIZARD_INFO"));
    SetFieldText(IDC_lblShortcutNameExample, TranslateDialogItem("LBL_SHORTCUT_NAME_EXAMPLE"));
    SetFieldText(IDC_lblFinished, TranslateDialogItem("LBL_LINKCREATED"));
} catch (...) {
    mError::PassOn("frmCreateTarvolinShortcut_New.TranslateDialog");
}

void frmCreateTarvolinShortcut_New::OnCommand(int id, int code) {
    if (nav.OnCommand(id, code))
        return;
    const auto entry = [](const char* name, auto&& action) {
        mError::AsEntryPoint(ShortcutWizard::Procedure(name), action);
    };
    if (id == IDC_txtDest && code == EN_CHANGE)
        entry("txtDest_Change", [this] { SetDefaultLinkName(); });
    else if (id == IDC_cmdSelLinkDestFolder && code == BN_CLICKED)
        entry("cmdSelLinkDestFolder_Click", [this] { cmdSelLinkDestFolder_Click(); });
    else if (id >= IDC_opDest_0 && id < IDC_opDest_0 + ShortcutWizard::kDestinations && code == BN_CLICKED)
        opDest_Click(id - IDC_opDest_0);
    else if (id == IDC_cmdSelFolder && code == BN_CLICKED)
        entry("cmdSelFolder_Click", [this] { cmdSelFolder_Click(); });
    else if (id == IDC_ckCreateFurtherShortcut && code == BN_CLICKED)
        entry("ckCreateFurtherShortcut_Click", [this] { ckCreateFurtherShortcut_Click(); });
    else if (id == IDCANCEL)
        entry("ucWizard_Nav_CancelClicked", [this] { Dismiss(); });
}

std::optional<INT_PTR> frmCreateTarvolinShortcut_New::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CTLCOLORSTATIC)
        return titleArea.Colours(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam));
    return std::nullopt;
}
