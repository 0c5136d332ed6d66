// One page of the main window behind its tab, made from its own layout inside the tab area. A page owns
// its controls and does three things: it shows the values of the profile being shown, hands back the
// values it shows, and retranslates its captions. The values are the program's (MainWindowValues), never a
// control's encoding. The window owns the pages, the tabs, the menus and the commands: a page's buttons
// are handed to it.
#pragma once

#include <functional>
#include <string>

#include "base/Mnemonics.h"
#include "mainwindow/MainWindowValues.h"
#include "winui/Dialog.h"

class MainPage : public Dialog {
public:
    // A value that the command line shows changed; a failure in what follows is reported under the trail.
    using ValueChanged = std::function<void(const char* trail)>;
    // A button of the page was pressed.
    using ButtonPressed = std::function<void(int id)>;

    MainPage(int layout, ValueChanged changed, ButtonPressed pressed);

    // Makes the page inside the window `parent`; until then it shows nothing and hands back nothing, and
    // Retranslate only takes its captions' letters.
    void Create(HWND parent);
    bool Made() const { return Handle() != nullptr; }

    // A page without profile values shows and hands back nothing.
    virtual void ShowValues(const MainWindowValues& values);
    virtual void HandBack(MainWindowValues& values) const;
    // The captions from the language file; `keys` hands out the Alt+letters, which the whole window shares.
    virtual void Retranslate(Mnemonics& keys) = 0;

    // The text of `key` in the main window's section of the language file.
    static std::string Text(const char* key);

protected:
    void OnCommand(int id, int code) override;
    // The page and its labels, check boxes and frames lie on the tab area's colour.
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    // `text` with its Alt+letter as the caption of control `id`.
    void SetCaption(int id, Mnemonics& keys, const std::string& text);
    // The five entries of list `id`: the texts of `prefix` followed by 1 to 5; the choice stays.
    void FillList(int id, const char* prefix);

    void Changed(const char* trail) const { m_changed(trail); }
    void Pressed(int id) const { m_pressed(id); }

private:
    int m_layout;
    ValueChanged m_changed;
    ButtonPressed m_pressed;
};
