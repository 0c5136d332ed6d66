#include "ui/main/ScenarioPage.h"

#include <QComboBox>
#include <QLabel>
#include <QStringListModel>
#include <QVBoxLayout>

#include "error/mError.h"
#include "mainwindow/frmMainLists.h"
#include "ui/Named.h"
#include "ui/QtText.h"
#include "ui/controls/AccessibleChoice.h"
#include "ui/dialogs/MnemonicSet.h"

namespace {

QComboBox* EditableList(QWidget* parent, const char* name) {
    auto* list = Named<QComboBox>(parent, QString::fromLatin1(name));
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->setModel(new QStringListModel(list));
    AccessibleChoice::Follow(*list);
    return list;
}

// The entries go in at once into a model of plain texts: a list model of items would make and announce one
// item per entry, which counts in a game folder of ten thousand paks.
void SetEntries(QComboBox* list, const std::vector<std::string>& entries) {
    const QString text = list->currentText();
    QStringList items;
    items.reserve(static_cast<qsizetype>(entries.size()));
    for (const std::string& entry : entries)
        items.push_back(QtText::ToQt(entry));
    static_cast<QStringListModel*>(list->model())->setStringList(items);
    list->setEditText(text);
}

}  // namespace

ScenarioPage::ScenarioPage(QWidget* parent) : MainPage(parent, 2) {
    lblScenarios = Named<QLabel>(this, QStringLiteral("lblScenarios"));
    txtScenario = EditableList(this, "txtScenario");
    lblScenarioInfo = WrappedLabel(this, "lblScenarioInfo");
    lblGraphicPak = Named<QLabel>(this, QStringLiteral("lblGraphicPak"));
    txtGraphicPack = EditableList(this, "txtGraphicPack");
    lblGraphicPakInfo = WrappedLabel(this, "lblGraphicPakInfo");
    lblScenarios->setBuddy(txtScenario);
    lblGraphicPak->setBuddy(txtGraphicPack);
    auto* layout = new QVBoxLayout(this);
    for (QWidget* widget : {static_cast<QWidget*>(lblScenarios), static_cast<QWidget*>(txtScenario),
                            static_cast<QWidget*>(lblScenarioInfo)})
        layout->addWidget(widget);
    layout->addSpacing(fontMetrics().height());
    for (QWidget* widget : {static_cast<QWidget*>(lblGraphicPak), static_cast<QWidget*>(txtGraphicPack),
                            static_cast<QWidget*>(lblGraphicPakInfo)})
        layout->addWidget(widget);
    layout->addStretch();

    connect(txtScenario, &QComboBox::currentTextChanged, this,
            [this] { emit ValueChanged("frmMain.txtScenario_Change"); });
    connect(txtGraphicPack, &QComboBox::currentTextChanged, this,
            [this] { emit ValueChanged("frmMain.txtGraphicPack_Change"); });
}

void ScenarioPage::ShowValues(const MainWindowValues& values) {
    txtScenario->setEditText(QtText::ToQt(values.scenario));
    txtGraphicPack->setEditText(QtText::ToQt(values.graphicPack));
}

void ScenarioPage::HandBack(MainWindowValues& values) const {
    values.scenario = QtText::FromQt(txtScenario->currentText());
    values.graphicPack = QtText::FromQt(txtGraphicPack->currentText());
}

void ScenarioPage::FillScenarioFilesList(const std::string& tarvolinPath) try {
    SetEntries(txtScenario, frmMainLists::ScenarioEntries(tarvolinPath));
} catch (...) {
    mError::PassOn("frmMain.FillScenarioFilesList");
}

void ScenarioPage::FillDatenPakList(const std::string& tarvolinPath) try {
    SetEntries(txtGraphicPack, frmMainLists::DatenPakEntries(tarvolinPath));
} catch (...) {
    mError::PassOn("frmMain.FillDatenPakList");
}

void ScenarioPage::Retranslate(MnemonicSet& keys) {
    lblScenarios->setText(keys.Add(Text("LBL_SCENARIO_LIST")));
    lblGraphicPak->setText(keys.Add(Text("LBL_GRAPHICPAK_LIST")));
    lblScenarioInfo->setText(Text("LBL_SCENARIO_LIST_INFO"));
    lblGraphicPakInfo->setText(Text("LBL_GRAPHICPAK_LIST_INFO"));
}
