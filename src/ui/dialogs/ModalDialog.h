// The protocol every modal window follows: the caller creates the window, calls its InitDialog(...), shows
// it with ShowModal(), reads Cancel() (true unless the window was confirmed) and its result, and lets it go.
// The texts are translated again each time the window is shown, so it speaks the language chosen now.
#pragma once

#include <QDialog>
#include <functional>
#include <initializer_list>
#include <string>

class QHBoxLayout;
class QLabel;
class QPushButton;

class ModalDialog : public QDialog {
    Q_OBJECT

public:
    // True unless the window ended with its confirming button.
    bool Cancel() const { return m_cancel; }

    // Translates the window and shows it modally; returns once it is closed.
    void ShowModal();

    // The text of `key` in the window's own section of the language files.
    std::string TranslateDialogItem(const std::string& key) const;

protected:
    // `name` is the window's objectName and the first part of its trail names; `section` is its own section
    // of the language files.
    ModalDialog(const char* name, const char* section, QWidget* parent);

    // Sets every caption from the language files.
    virtual void TranslateDialog() = 0;

    // Ends the window as confirmed: Cancel() becomes false. Every other way out (Escape, the close button,
    // reject()) leaves it cancelled.
    void Confirm();
    void reject() override;
    // What InitDialog does first: the window counts as cancelled until it is confirmed.
    void ResetCancel() { m_cancel = true; }

    // The texts of the window's own section and of the shared "GLOBAL" section, ready for a widget.
    QString ItemText(const char* key) const;
    static QString GlobalText(const char* key);

    // The pieces the windows share.
    QLabel* WrappedLabel(const char* name, QWidget* parent = nullptr);
    QPushButton* Button(const char* name, QWidget* parent = nullptr);
    // A row that puts `buttons` at its right end, the first of them the default button.
    static QHBoxLayout* ButtonRow(std::initializer_list<QPushButton*> buttons);

private:
    const char* m_section;
    bool m_cancel = true;
};

// Every modal window of the program (the message boxes and choosers too) is run here: exec() in the
// program, while a test installs a runner that plays the user. An empty runner returns to exec().
void RunModal(QDialog& dialog);
void InstallModalRunner(std::function<void(QDialog&)> runner);
