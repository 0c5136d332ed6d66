#include "ui/main/RefreshPage.h"

#include <QGroupBox>
#include <QListWidget>
#include <QVBoxLayout>

#include "ui/Named.h"
#include "ui/controls/AccessibleChoice.h"
#include "ui/dialogs/MnemonicSet.h"

RefreshPage::RefreshPage(QWidget* parent) : MainPage(parent, 4) {
    frmScreenRefresh = Named<QGroupBox>(this, QStringLiteral("frmScreenRefresh"));
    lstRefresh = Named<QListWidget>(frmScreenRefresh, QStringLiteral("lstRefresh"));
    lstRefresh->setMaximumHeight(fontMetrics().lineSpacing() * 6);
    for (int i = 0; i < kListEntries; ++i)
        lstRefresh->addItem(QString());
    AccessibleChoice::Follow(*lstRefresh);
    auto* frame = new QVBoxLayout(frmScreenRefresh);
    frame->addWidget(lstRefresh);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frmScreenRefresh);
    layout->addStretch();
    connect(lstRefresh, &QListWidget::currentRowChanged, this,
            [this] { emit ValueChanged("frmMain.lstRefresh_Click"); });
}

void RefreshPage::ShowValues(const MainWindowValues& values) {
    lstRefresh->setCurrentRow(values.refresh - 1);
}

void RefreshPage::HandBack(MainWindowValues& values) const {
    values.refresh = lstRefresh->currentRow() + 1;
}

void RefreshPage::Retranslate(MnemonicSet& keys) {
    frmScreenRefresh->setTitle(keys.Add(Text("LBL_SCREEN_REFRESH")));
    lstRefresh->setAccessibleName(Text("LBL_SCREEN_REFRESH"));
    for (int i = 0; i < kListEntries; ++i)
        lstRefresh->item(i)->setText(Text(("LST_REFRESH_" + std::to_string(i + 1)).c_str()));
}
