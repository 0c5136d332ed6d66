// The wizard's window: the title band, the six pages stacked in one place, and the button bar.
#include "ui/shortcuts/frmCreateTarvolinShortcut_New.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "error/mError.h"
#include "ui/EntryPoint.h"
#include "ui/Named.h"
#include "ui/QtText.h"
#include "ui/controls/FieldNames.h"
#include "ui/controls/ucPath.h"
#include "ui/dialogs/MnemonicSet.h"
#include "ui/shortcuts/ucWizard_Nav.h"
#include "ui/shortcuts/ucWizard_TitleArea.h"

namespace {

QString Indexed(const char* name, int index) {
    return QStringLiteral("%1_%2").arg(QString::fromLatin1(name)).arg(index);
}

// A labelled path field with its browse button, from `row` of a page's grid on.
void PlacePathRow(QGridLayout* layout, int row, QLabel* label, ucPath* field, QPushButton* browse) {
    label->setBuddy(field);
    layout->addWidget(label, row, 0, 1, 2);
    layout->addWidget(field, row + 1, 0);
    layout->addWidget(browse, row + 1, 1);
    layout->setColumnStretch(0, 1);
    layout->setRowStretch(row + 2, 1);
}

// An option group of `count` buttons named name_0, name_1, ..., stacked on `layout`.
template <std::size_t count>
void PlaceOptions(std::array<QRadioButton*, count>& options, const char* name, QWidget* page,
                  QVBoxLayout* layout) {
    auto* group = new QButtonGroup(page);
    for (std::size_t i = 0; i < count; ++i) {
        options[i] = Named<QRadioButton>(page, Indexed(name, static_cast<int>(i)));
        group->addButton(options[i]);
        layout->addWidget(options[i]);
    }
}

}  // namespace

frmCreateTarvolinShortcut_New::frmCreateTarvolinShortcut_New(QWidget* parent)
    : ModalDialog("frmCreateTarvolinShortcut_New", "CREATE_SHORTCUT_DIALOG_NEW", parent) {
    titleArea = new ucWizard_TitleArea(this);
    pages = new QStackedWidget(this);
    for (int i = 0; i < kPages; ++i)
        pages->addWidget(picStep[i] = Named<QWidget>(pages, Indexed("picStep", i)));
    CreateTargetPage();
    CreateModePage();
    CreateDestinationPage();
    CreateFolderPage();
    CreateNamePage();
    CreateDonePage();
    nav = new ucWizard_Nav(this);
    nav->findChild<QPushButton*>(QStringLiteral("cmdNext"))->setDefault(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, fontMetrics().height() / 2);
    layout->addWidget(titleArea);
    auto* body = new QVBoxLayout;
    const int margin = fontMetrics().averageCharWidth() * 2;
    body->setContentsMargins(margin, margin, margin, 0);
    body->addWidget(pages, 1);
    body->addWidget(nav);
    layout->addLayout(body, 1);
    // One size for every page, with room for the tallest (the mode page with its settings list) and for a
    // task of two lines in the title band, so that the buttons never move under the mouse.
    titleArea->setFixedHeight(fontMetrics().lineSpacing() * 6 + fontMetrics().height() * 2);
    pages->setFixedHeight(fontMetrics().lineSpacing() * 18);
    setMinimumWidth(fontMetrics().averageCharWidth() * 72);
    ConnectControls();
}

QWidget* frmCreateTarvolinShortcut_New::NewPage(int index) {
    return picStep[index];
}

void frmCreateTarvolinShortcut_New::CreateTargetPage() {
    QWidget* page = NewPage(0);
    lblWizardInfo = WrappedLabel("lblWizardInfo", page);
    lblShortcutTo = Named<QLabel>(page, QStringLiteral("lblShortcutTo"));
    txtDest = Named<ucPath>(page, QStringLiteral("txtDest"));
    txtDest->SetAcceptFiles(true);
    cmdSelLinkDestFolder = Button("cmdSelLinkDestFolder", page);
    auto* layout = new QGridLayout(page);
    layout->addWidget(lblWizardInfo, 0, 0, 1, 2);
    layout->setRowMinimumHeight(1, fontMetrics().height());
    PlacePathRow(layout, 2, lblShortcutTo, txtDest, cmdSelLinkDestFolder);
}

void frmCreateTarvolinShortcut_New::CreateModePage() {
    QWidget* page = NewPage(1);
    auto* layout = new QVBoxLayout(page);
    PlaceOptions(opMode, "opMode", page, layout);
    opMode[1]->setChecked(true);
    lblSettingsInfo = Named<QLabel>(page, QStringLiteral("lblSettingsInfo"));
    txtSettings = Named<QPlainTextEdit>(page, QStringLiteral("txtSettings"));
    txtSettings->setReadOnly(true);
    // Room for every line of the settings list without a scroll bar.
    txtSettings->setMinimumHeight(fontMetrics().lineSpacing() * 8 + fontMetrics().height());
    lblSettingsInfo->setBuddy(txtSettings);
    layout->addSpacing(fontMetrics().height() / 2);
    layout->addWidget(lblSettingsInfo);
    layout->addWidget(txtSettings, 1);
}

void frmCreateTarvolinShortcut_New::CreateDestinationPage() {
    QWidget* page = NewPage(2);
    auto* layout = new QVBoxLayout(page);
    PlaceOptions(opDest, "opDest", page, layout);
    layout->addStretch();
}

void frmCreateTarvolinShortcut_New::CreateFolderPage() {
    QWidget* page = NewPage(3);
    lblShortcutFolder = Named<QLabel>(page, QStringLiteral("lblShortcutFolder"));
    txtDestFolder = Named<ucPath>(page, QStringLiteral("txtDestFolder"));
    txtDestFolder->SetAcceptFolders(true);
    cmdSelFolder = Button("cmdSelFolder", page);
    PlacePathRow(new QGridLayout(page), 0, lblShortcutFolder, txtDestFolder, cmdSelFolder);
}

void frmCreateTarvolinShortcut_New::CreateNamePage() {
    QWidget* page = NewPage(4);
    lblShortcutName = Named<QLabel>(page, QStringLiteral("lblShortcutName"));
    txtLinkName = Named<QLineEdit>(page, QStringLiteral("txtLinkName"));
    lblShortcutName->setBuddy(txtLinkName);
    lblShortcutNameExample = Named<QLabel>(page, QStringLiteral("lblShortcutNameExample"));
    lblShortcutNameExample->hide();
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(lblShortcutName);
    layout->addWidget(txtLinkName);
    layout->addWidget(lblShortcutNameExample);
    layout->addStretch();
}

void frmCreateTarvolinShortcut_New::CreateDonePage() {
    QWidget* page = NewPage(5);
    lblFinished = WrappedLabel("lblFinished", page);
    ckCreateFurtherShortcut = Named<QCheckBox>(page, QStringLiteral("ckCreateFurtherShortcut"));
    ckCreateFurtherShortcut->setChecked(true);
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(lblFinished);
    layout->addSpacing(fontMetrics().height());
    layout->addWidget(ckCreateFurtherShortcut);
    layout->addStretch();
}

void frmCreateTarvolinShortcut_New::ConnectControls() {
    connect(txtDest, &ucPath::Change, this, [this] {
        try {
            SetDefaultLinkName();
        } catch (...) {
            mError::ShowError("frmCreateTarvolinShortcut_New.txtDest_Change");
        }
    });
    ConnectEntryPoint(cmdSelLinkDestFolder, &QPushButton::clicked, this,
                      &frmCreateTarvolinShortcut_New::cmdSelLinkDestFolder_Click,
                      "frmCreateTarvolinShortcut_New.cmdSelLinkDestFolder_Click");
    for (int i = 0; i < ShortcutWizard::kDestinations; ++i)
        connect(opDest[i], &QRadioButton::clicked, this, [this, i] { opDest_Click(i); });
    ConnectEntryPoint(cmdSelFolder, &QPushButton::clicked, this,
                      &frmCreateTarvolinShortcut_New::cmdSelFolder_Click,
                      "frmCreateTarvolinShortcut_New.cmdSelFolder_Click");
    ConnectEntryPoint(ckCreateFurtherShortcut, &QCheckBox::clicked, this,
                      &frmCreateTarvolinShortcut_New::ckCreateFurtherShortcut_Click,
                      "frmCreateTarvolinShortcut_New.ckCreateFurtherShortcut_Click");
    ConnectEntryPoint(nav, &ucWizard_Nav::PageShowing, this,
                      &frmCreateTarvolinShortcut_New::ucWizard_Nav_ShowPage,
                      "frmCreateTarvolinShortcut_New.ucWizard_Nav_ShowPage");
    connect(nav, &ucWizard_Nav::LeavePage, this, &frmCreateTarvolinShortcut_New::ucWizard_Nav_LeavePage);
    ConnectEntryPoint(nav, &ucWizard_Nav::NextClicked, this,
                      &frmCreateTarvolinShortcut_New::ucWizard_Nav_NextClicked,
                      "frmCreateTarvolinShortcut_New.ucWizard_Nav_NextClicked");
    ConnectEntryPoint(nav, &ucWizard_Nav::CancelClicked, this,
                      &frmCreateTarvolinShortcut_New::ucWizard_Nav_CancelClicked,
                      "frmCreateTarvolinShortcut_New.ucWizard_Nav_CancelClicked");
}

void frmCreateTarvolinShortcut_New::TranslateDialog() try {
    setWindowTitle(ItemText("DIALOG_CAPTION"));
    nav->Translate();
    MnemonicSet keys;
    for (const char* button : {"cmdNext", "cmdBack", "cmdCancel"})
        keys.Add(nav->findChild<QPushButton*>(QString::fromLatin1(button))->text());
    lblWizardInfo->setText(ItemText("WIZARD_INFO"));
    lblShortcutTo->setText(keys.Add(ItemText("LBL_SHORTCUT_TO")));
    cmdSelLinkDestFolder->setText(keys.Add(GlobalText("BTN_Browse")));
    opMode[0]->setText(keys.Add(ItemText("LBL_MODE_STANDARD")));
    opMode[1]->setText(keys.Add(ItemText("LBL_MODE_CURRENTPROFILE")));
    lblSettingsInfo->setText(keys.Add(ItemText("LBL_SETTINGS_INFO")));
    for (int i = 0; i < ShortcutWizard::kDestinations; ++i)
        opDest[i]->setText(keys.Add(ItemText(ShortcutWizard::kDestinationKeys[i])));
    lblShortcutFolder->setText(keys.Add(ItemText("LBL_SHORTCUT_FOLDER")));
    cmdSelFolder->setText(keys.Add(GlobalText("BTN_Browse")));
    lblShortcutName->setText(keys.Add(ItemText("LBL_SHORTCUT_NAME")));
    lblShortcutNameExample->setText(ItemText("LBL_SHORTCUT_NAME_EXAMPLE"));
    lblFinished->setText(ItemText("LBL_LINKCREATED"));
    ckCreateFurtherShortcut->setText(keys.Add(ItemText("CHK_CREATE_FURTHER_SHORTCUT")));
    FieldNames::FollowLabels(*this);
} catch (...) {
    mError::PassOn("frmCreateTarvolinShortcut_New.TranslateDialog");
}
