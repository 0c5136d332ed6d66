// The display page: the standard resolutions or a width and height of the user's own, and the preview of
// the chosen one. Typing or clicking into a size field chooses the user-defined mode; the fields take only
// digits, and leaving one corrects a size below the game's minimum.
#pragma once

#include <functional>
#include <memory>

#include "winui/main/MainPage.h"

class ucResolutionPreview;

class DisplayPage : public MainPage {
public:
    // Shows the page and says what CorrectInput corrected (a key of the main window's texts); the focus
    // goes to the control given, when there is one.
    using Teller = std::function<void(const char* key, HWND focus)>;

    DisplayPage(ValueChanged changed, ButtonPressed pressed, Teller tellCorrection);
    ~DisplayPage() override;

    void ShowValues(const MainWindowValues& values) override;
    void HandBack(MainWindowValues& values) const override;
    void Retranslate(Mnemonics& keys) override;

    // Raises too small user-defined sizes to the game's minimum and says so.
    void CorrectInput();
    // The list's choice: the standard mode (unless the page is being loaded) and its preview.
    void lstResolution_Click();
    // The preview of the list's choice, the mode as it is.
    void ShowPreview();

protected:
    void OnInit() override;
    void OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void ChooseMode(int index);
    void WatchSizeField(int id, const char* trail);

    Teller m_tellCorrection;
    std::unique_ptr<ucResolutionPreview> m_preview;
    bool m_loading = false;
};
