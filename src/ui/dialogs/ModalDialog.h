// The protocol every modal window follows: the caller creates the window, calls its InitDialog(...), shows
// it with ShowModal(), reads Cancel() (true unless the window was confirmed) and its result, and lets it go.
// The texts are translated again each time the window is shown, so it speaks the language chosen now.
#pragma once

#include <QDialog>
#include <functional>
#include <initializer_list>

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

protected:
    ModalDialog(const char* name, QWidget* parent);

    // Sets every caption from the language files.
    virtual void TranslateDialog() = 0;

    // Ends the window as confirmed: Cancel() becomes false. Every other way out (Escape, the close button,
    // reject()) leaves it cancelled.
    void Confirm();
    void reject() override;
    // What InitDialog does first: the window counts as cancelled until it is confirmed.
    void ResetCancel() { m_cancel = true; }

    // The pieces the windows share.
    QLabel* WrappedLabel(const char* name, QWidget* parent = nullptr);
    QPushButton* Button(const char* name, QWidget* parent = nullptr);
    // A row that puts `buttons` at its right end, the first of them the default button.
    static QHBoxLayout* ButtonRow(std::initializer_list<QPushButton*> buttons);

private:
    bool m_cancel = true;
};

// Every modal window of the program (the message boxes and choosers too) is run here: exec() in the
// program, while a test installs a runner that plays the user. An empty runner returns to exec().
void RunModal(QDialog& dialog);
void InstallModalRunner(std::function<void(QDialog&)> runner);
