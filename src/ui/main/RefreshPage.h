// The fourth page: the screen's refresh rate.
#pragma once

#include "ui/main/MainPage.h"

class QGroupBox;
class QListWidget;

class RefreshPage final : public MainPage {
    Q_OBJECT

public:
    // The entries of the refresh rates.
    static constexpr int kListEntries = 5;

    explicit RefreshPage(QWidget* parent);

    void ShowValues(const MainWindowValues& values) override;
    void HandBack(MainWindowValues& values) const override;
    void Retranslate(MnemonicSet& keys) override;

private:
    QGroupBox* frmScreenRefresh = nullptr;
    QListWidget* lstRefresh = nullptr;
};
