// The two directions between the active profile and the controls, the lists filled from the game folder,
// and the resolution fields' rules.
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QRegularExpressionValidator>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/UserInterface.h"
#include "app/mMain.h"
#include "app/mPath.h"
#include "base/mString.h"
#include "error/mError.h"
#include "mainwindow/frmMainLists.h"
#include "mainwindow/frmMainRules.h"
#include "profiles/Profile.h"
#include "translate/cTranslate.h"
#include "ui/QtText.h"
#include "ui/controls/ucPath.h"
#include "ui/main/frmMain.h"
#include "ui/main/ucResolutionPreview.h"

namespace {

int CheckValue(const QCheckBox* box) {
    return box->checkState() == Qt::Checked ? 1 : (box->checkState() == Qt::PartiallyChecked ? 2 : 0);
}

void SetEntries(QComboBox* list, const std::vector<std::string>& entries) {
    const QString text = list->currentText();
    list->clear();
    for (const std::string& entry : entries)
        list->addItem(QtText::ToQt(entry));
    list->setEditText(text);
}

}  // namespace

MainWindowValues frmMain::Values() const {
    MainWindowValues values;
    values.tarvolinPath = QtText::FromQt(txtTarvolinPath->Text());
    values.logMessages = CheckValue(ckLogMessages);
    values.freeplay = CheckValue(ckFreeplay);
    values.standardResolution = opResolution[0]->isChecked();
    values.resolutionIndex = lstResolution->currentRow();
    values.width = QtText::FromQt(txtRes_Width->text());
    values.height = QtText::FromQt(txtRes_Height->text());
    values.scenario = QtText::FromQt(txtScenario->currentText());
    values.graphicPack = QtText::FromQt(txtGraphicPack->currentText());
    values.refreshIndex = lstRefresh->currentRow();
    return values;
}

bool frmMain::LoadData(Profile& profile) try {
    App().SetActiveProfile(&profile);
    if (profile.TarvolinPath().empty()) {
        // A cancelled chooser hands back its proposal, which is no game: only an existing file is one.
        const std::string chosen = mMain::AskForTarvoPath("");
        if (!mPath::FileExists(chosen))
            Ui().MsgBox(Translator().TranslateEx("ERROR_MESSAGES", "ERR_TarvolinFolderNotDefined"), vbOKOnly);
        else
            profile.SetTarvolinPath(chosen);
    }
    m_loading = true;
    ShowValues(profile);
    FillDatenPakList();
    FillScenarioFilesList();
    m_loading = false;
    FillProfileList();
    lstResolution_Click();
    UpdateVersionLabels();
    return true;
} catch (...) {
    m_loading = false;
    mError::PassOn("frmMain.LoadData");
}

void frmMain::ShowValues(const Profile& profile) {
    txtTarvolinPath->SetText(QtText::ToQt(profile.TarvolinPath()));
    ckLogMessages->setChecked(profile.LogMessages());
    ckFreeplay->setChecked(profile.Freeplay());
    opResolution[profile.UsePreDefinedResolution() ? 0 : 1]->setChecked(true);
    lstResolution->setCurrentRow(profile.PreDefinedResolution() - 1);
    txtRes_Width->setText(QString::number(profile.ResolutionWidth()));
    txtRes_Height->setText(QString::number(profile.ResolutionHeight()));
    txtScenario->setEditText(QtText::ToQt(profile.ScenarioPath()));
    txtGraphicPack->setEditText(QtText::ToQt(profile.GraphicPakPath()));
    lstRefresh->setCurrentRow(profile.Refresh() - 1);
}

void frmMain::RefreshProfileData() try {
    CorrectInput();
    CheckData();
    const MainWindowValues values = Values();
    Profile& profile = *App().ActiveProfile();
    profile.SetTarvolinPath(values.tarvolinPath);
    profile.SetLogMessages(values.logMessages == MainWindowValues::kChecked);
    profile.SetFreeplay(values.freeplay == MainWindowValues::kChecked);
    profile.SetUsePreDefinedResolution(values.standardResolution);
    profile.SetPreDefinedResolution(static_cast<int16_t>(values.resolutionIndex + 1));
    profile.SetResolutionWidth(mString::ToInt16(values.width));
    profile.SetResolutionHeight(mString::ToInt16(values.height));
    profile.SetScenarioPath(values.scenario);
    profile.SetGraphicPakPath(values.graphicPack);
    profile.SetRefresh(static_cast<int16_t>(values.refreshIndex + 1));
    frmMainRules::CompareCommandLines(GetCmdLineParameters(), profile.GetCmdLineParameters());
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

void frmMain::CheckData() {
    frmMainRules::CheckData(Values());
}

// The height is corrected in place; only the width's correction takes the focus back to its field.
void frmMain::CorrectInput() try {
    const frmMainRules::ResolutionCorrection corrected = frmMainRules::CorrectInput(Values());
    if (corrected.height) {
        txtRes_Height->setText(QtText::ToQt(*corrected.height));
        TellCorrection("MSG_ResolutionHeigthChanged", nullptr);
    }
    if (corrected.width) {
        txtRes_Width->setText(QtText::ToQt(*corrected.width));
        TellCorrection("MSG_ResolutionWidthChanged", txtRes_Width);
    }
} catch (...) {
    mError::PassOn("frmMain.CorrectInput");
}

// Shows the display page and says what was corrected; nobody is told while the program ends on request.
void frmMain::TellCorrection(const char* key, QWidget* focus) {
    if (m_ending)
        return;
    ucTab1_Click(2);
    if (focus != nullptr)
        focus->setFocus();
    Ui().MsgBox(Translator().TranslateEx("MAIN_DIALOG", key), vbOKOnly);
}

void frmMain::FillScenarioFilesList() try {
    SetEntries(txtScenario, frmMainLists::ScenarioEntries(App().ActiveProfile()->TarvolinPath()));
} catch (...) {
    mError::PassOn("frmMain.FillScenarioFilesList");
}

void frmMain::FillDatenPakList() try {
    SetEntries(txtGraphicPack, frmMainLists::DatenPakEntries(App().ActiveProfile()->TarvolinPath()));
} catch (...) {
    mError::PassOn("frmMain.FillDatenPakList");
}

void frmMain::lstResolution_Click() try {
    if (!m_loading)
        opResolution[0]->setChecked(true);
    ShowPreview();
    ShowCommandLine();
} catch (...) {
    mError::ShowError("frmMain.lstResolution_Click");
}

void frmMain::ShowPreview() {
    if (const auto preview = frmMainRules::PreviewFor(lstResolution->currentRow()))
        UserControl11->SetResolution(preview->width, preview->height, preview->fillArea);
}

// Typing into a resolution field switches to the user-defined mode; only digits and backspace get in.
// Keys that type nothing (Tab, the arrows, Delete) pass as they always do.
bool frmMain::ResolutionField_KeyPress(const QKeyEvent& event) {
    const QString text = event.text();
    const bool typing = !text.isEmpty() && (text.at(0).unicode() >= 0x20 || text.at(0).unicode() == 8) &&
                        text.at(0).unicode() != 0x7F;
    if (!typing)
        return false;
    opResolution[1]->setChecked(true);
    return !frmMainRules::IsResolutionKey(text.at(0).unicode());
}

// Every edit that changes the command line shows it anew; a failure is reported under the control's name.
void frmMain::ControlChanged(const char* procedure) {
    try {
        ShowCommandLine();
    } catch (...) {
        mError::ShowError(procedure);
    }
}

// The line under the pages shows what Start will give the game, as the controls say now.
void frmMain::ShowCommandLine() {
    txtCommandLine->setText(QtText::ToQt(GetCmdLineParameters()));
    txtCommandLine->setCursorPosition(0);
}

void frmMain::ConnectBinding() {
    connect(lstResolution, &QListWidget::currentRowChanged, this, [this] { lstResolution_Click(); });
    connect(lstResolution, &QListWidget::itemClicked, this, [this] { lstResolution_Click(); });
    for (auto [field, name] : {std::pair{txtRes_Width, "frmMain.txtRes_Width"},
                               std::pair{txtRes_Height, "frmMain.txtRes_Height"}}) {
        // Only digits, also when text is pasted or dropped.
        field->setValidator(
            new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), field));
        const std::string procedure = name;
        connect(field, &QLineEdit::textChanged, this,
                [this, procedure] { ControlChanged((procedure + "_Change").c_str()); });
        connect(field, &QLineEdit::editingFinished, this, [this, procedure] {
            try {
                CorrectInput();
            } catch (...) {
                mError::ShowError(procedure + "_LostFocus");
            }
        });
    }
    connect(ckLogMessages, &QCheckBox::stateChanged, this,
            [this] { ControlChanged("frmMain.ckLogMessages_Click"); });
    connect(ckFreeplay, &QCheckBox::stateChanged, this,
            [this] { ControlChanged("frmMain.ckFreeplay_Click"); });
    connect(opResolution[0], &QRadioButton::toggled, this,
            [this] { ControlChanged("frmMain.opResolution_Click"); });
    connect(lstRefresh, &QListWidget::currentRowChanged, this,
            [this] { ControlChanged("frmMain.lstRefresh_Click"); });
    connect(txtScenario, &QComboBox::currentTextChanged, this,
            [this] { ControlChanged("frmMain.txtScenario_Change"); });
    connect(txtGraphicPack, &QComboBox::currentTextChanged, this,
            [this] { ControlChanged("frmMain.txtGraphicPack_Change"); });
}
