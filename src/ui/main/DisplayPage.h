// The third page: a standard resolution from the list or a size of the user's own, and the preview of the
// chosen one. Its rules (the keys the size fields take, the corrections, the preview's sizes) are core's
// (frmMainRules); this page applies them to its controls.
#pragma once

#include <QPixmap>
#include <array>
#include <functional>

#include "ui/main/MainPage.h"

class QGroupBox;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QListWidget;
class QRadioButton;
class ucResolutionPreview;

class DisplayPage final : public MainPage {
    Q_OBJECT

public:
    // The entries of the standard resolutions.
    static constexpr int kListEntries = 5;

    // Tells the user about a correction: the message's key, and the field that takes the focus or null.
    using Teller = std::function<void(const char* key, QWidget* focus)>;

    DisplayPage(QWidget* parent, Teller tellCorrection);

    void ShowValues(const MainWindowValues& values) override;
    void HandBack(MainWindowValues& values) const override;
    void Retranslate(MnemonicSet& keys) override;

    // In the user-defined mode a too small width or height becomes its minimum, and the user is told:
    // the height first and in place, then the width, which takes the focus back.
    void CorrectInput();
    // The preview follows the chosen entry, and choosing an entry chooses the standard mode, except while
    // the page shows a profile's values.
    void lstResolution_Click();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildLayout();
    void ConnectFields();
    void Form_Load();
    int Resolution() const;
    void ShowPreview();
    bool ResolutionField_KeyPress(const QKeyEvent& event);

    Teller m_tellCorrection;
    bool m_loading = false;  // ShowValues is filling the controls

    QGroupBox* frmResolution = nullptr;
    std::array<QRadioButton*, 2> opResolution{};
    QListWidget* lstResolution = nullptr;
    QLabel* lblwidth_heigth = nullptr;
    QLineEdit* txtRes_Width = nullptr;
    QLineEdit* txtRes_Height = nullptr;
    ucResolutionPreview* UserControl11 = nullptr;
    QLabel* lblResolution_Warning = nullptr;
    QLabel* Image1 = nullptr;  // the preview's picture, never shown itself
};
