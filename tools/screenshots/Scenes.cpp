#include "Scenes.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <memory>
#include <vector>

#include "ScreenshotSession.h"
#include "app/Application.h"
#include "app/ErrorReport.h"
#include "app/PublicObjects.h"
#include "app/UserInterface.h"
#include "error/Failure.h"
#include "profiles/Profile.h"
#include "translate/cTranslate.h"
#include "ui/QtText.h"
#include "ui/controls/HLine.h"
#include "ui/controls/ucPath.h"
#include "ui/controls/ucTab.h"
#include "ui/controls/ucTabArea.h"
#include "ui/dialogs/frmEditProfile.h"
#include "ui/dialogs/frmError.h"
#include "ui/dialogs/frmLoadProfile.h"
#include "ui/dialogs/frmOptions.h"
#include "ui/dialogs/frmProfiles.h"
#include "ui/dialogs/frmSave.h"
#include "ui/dialogs/frmStartingTarvolin.h"
#include "ui/dialogs/mMessageBox.h"
#include "ui/main/ucResolutionPreview.h"

namespace Scenes {
namespace {

QString Text(const char* section, const char* key) {
    return QtText::ToQt(Translator().TranslateEx(section, key));
}

// A failure as a user meets it: the game's file is missing when the start button is pressed.
ErrorReport SampleReport() {
    Failure failure(53, "File not found: /home/player/Games/Tarvolin/tarvolin.exe");
    failure.PrependSource("Profile.StartTarvolin");
    failure.PrependSource("frmMain.cmdStart_Click");
    return ComposeErrorReport(failure);
}

Profile SampleProfile() {
    Profile profile;
    profile.SetScenarioPath("scenarios/demo.sve");
    profile.SetGraphicPakPath("pak128");
    return profile;
}

// A control on a plain window with the margins a form gives it.
class Host : public QWidget {
public:
    explicit Host(const QString& name) {
        setObjectName(name + QStringLiteral("_host"));
        layout = new QVBoxLayout(this);
    }
    QVBoxLayout* layout;
};

void RenderPath(ScreenshotSession& session) {
    Host host(QStringLiteral("ucPath"));
    auto* path = new ucPath(&host);
    path->SetText(QStringLiteral("/home/player/Games/Tarvolin/tarvolin.exe"));
    path->setMinimumWidth(path->fontMetrics().averageCharWidth() * 48);
    host.layout->addWidget(path);
    session.Save(host, QStringLiteral("ucPath"));
}

// The main window's row of tabs, the first one active, on the page area they belong to. The tabs overlap
// the area's top border by one pixel, so the active one opens into its page.
void RenderTabs(ScreenshotSession& session) {
    Host host(QStringLiteral("ucTab"));
    auto* canvas = new QWidget(&host);
    auto* area = new ucTabArea(canvas);
    std::vector<ucTab*> tabs;
    int x = 0;
    for (const char* key : {"TAB_GAMESETTINGS", "TAB_SCENARIO", "TAB_DISPLAY", "TAB_REFRESH", "TAB_EXTRA"}) {
        auto* tab = new ucTab(canvas);
        tab->setObjectName(QStringLiteral("ucTab1_%1").arg(tabs.size()));
        tab->SetCaption(Text("MAIN_DIALOG", key));
        tab->SetIsActive(tabs.empty());
        tab->move(x, 0);
        tab->resize(tab->width(), tab->sizeHint().height());
        x += tab->width();
        tabs.push_back(tab);
    }
    const int tabHeight = tabs.front()->height();
    area->setGeometry(0, tabHeight - 1, x + area->fontMetrics().averageCharWidth() * 6,
                      area->fontMetrics().height() * 6);
    for (ucTab* tab : tabs)
        tab->raise();
    canvas->setFixedSize(area->geometry().right() + 1, area->geometry().bottom() + 1);
    host.layout->addWidget(canvas);
    session.Save(host, QStringLiteral("ucTab"));
}

void RenderTabArea(ScreenshotSession& session) {
    Host host(QStringLiteral("ucTabArea"));
    auto* area = new ucTabArea(&host);
    area->setMinimumSize(area->fontMetrics().averageCharWidth() * 40, area->fontMetrics().height() * 6);
    host.layout->addWidget(area);
    session.Save(host, QStringLiteral("ucTabArea"));
}

// A rule between a page and its button row, as the dialogs use it.
void RenderRule(ScreenshotSession& session) {
    Host host(QStringLiteral("HLine"));
    host.layout->addWidget(new QLabel(Text("START_TARVOLIN_DIALOG", "LBL_DIALOG_INFO"), &host));
    host.layout->addWidget(new HLine(&host));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(new QPushButton(Text("GLOBAL", "BTN_OK"), &host));
    buttons->addWidget(new QPushButton(Text("GLOBAL", "BTN_CANCEL"), &host));
    host.layout->addLayout(buttons);
    session.Save(host, QStringLiteral("HLine"));
}

void RenderPreview(ScreenshotSession& session, const QString& name, bool windowLook) {
    Host host(name);
    auto* preview = new ucResolutionPreview(&host);
    preview->SetPicture(ucResolutionPreview::SamplePicture());
    preview->SetResolution(800, 600, windowLook);
    host.layout->addWidget(preview);
    session.Save(host, name);
}

// A few profiles in memory, two of them changed; nothing reaches a settings file.
void AddSampleProfiles() {
    Profiles& profiles = App().Profiles();
    if (profiles.Count() > 0)
        return;
    const char* const samples[][2] = {{"PROFILE_DEFAULT", "The standard settings for Tarvolin"},
                                      {"profile_Race", "1920 x 1080, free play, no log"},
                                      {"profile_Demo", "The demo scenario with pak128"},
                                      {"profile_Testing", "800 x 600 in a window, with log file"}};
    for (const auto& [name, description] : samples) {
        Profile& profile = profiles.Add(name, name);
        profile.SetProfileName(name);
        profile.SetProfileDescription(description);
        profile.SetDataChanged(profile.ProfileCaption() != "Demo" && profile.ProfileCaption() != "DEFAULT");
    }
    App().SetActiveProfile(&profiles.Item("profile_Race"));
}

void RenderProfileDialogs(ScreenshotSession& session) {
    AddSampleProfiles();
    Profile profile;
    frmEditProfile edit;
    edit.InitDialog(frmEditProfile::kNewProfile, profile);
    edit.findChild<QLineEdit*>(QStringLiteral("txtName"))->setText(QStringLiteral("Race"));
    edit.findChild<QLineEdit*>(QStringLiteral("txtDescription"))
        ->setText(QStringLiteral("1920 x 1080, free play"));
    session.Save(edit, QStringLiteral("frmEditProfile"));
    frmEditProfile duplicate;
    duplicate.InitDialog(kDuplicateProfileMode, App().Profiles().Item("profile_Race"));
    duplicate.findChild<QLineEdit*>(QStringLiteral("txtName"))->setText(QStringLiteral("Race (2)"));
    session.Save(duplicate, QStringLiteral("frmEditProfile_Duplicate"));

    frmLoadProfile choose;
    choose.InitDialog();
    session.Save(choose, QStringLiteral("frmLoadProfile"));
    frmSave save;
    save.InitDialog();
    session.Save(save, QStringLiteral("frmSave"));
    frmProfiles all;
    all.InitDialog();
    session.Save(all, QStringLiteral("frmProfiles"));

    App().Options().SetEditorPath("/usr/bin/gnome-text-editor");
    frmOptions options;
    options.InitDialog();
    session.Save(options, QStringLiteral("frmOptions"));
}

}  // namespace

void RenderDialogs(ScreenshotSession& session) {
    RenderProfileDialogs(session);
    frmError report;
    report.InitDialog(SampleReport());
    session.Save(report, QStringLiteral("frmError"));
    report.findChild<QPushButton*>(QStringLiteral("cmdContact"))->click();
    session.Save(report, QStringLiteral("frmError_Contact"));

    const Profile profile = SampleProfile();
    frmStartingTarvolin start;
    start.InitDialog(profile);
    session.Save(start, QStringLiteral("frmStartingTarvolin"));

    const std::string question = Translator().TranslateEx("ERROR_MESSAGES", "ERR_TarvolinFolderNotDefined");
    const std::unique_ptr<QMessageBox> box =
        mMessageBox::Create(question, vbOKCancel | vbExclamation, nullptr);
    session.Save(*box, QStringLiteral("MsgBox"));

    const std::unique_ptr<QMessageBox> unsaved = mMessageBox::Create(
        App().SaveFailureText(platform::WriteFault::ReadOnlyFolder), vbOKOnly | vbExclamation, nullptr);
    session.Save(*unsaved, QStringLiteral("MsgBox_NotSaved"));
}

void RenderControls(ScreenshotSession& session) {
    RenderPath(session);
    RenderTabs(session);
    RenderTabArea(session);
    RenderRule(session);
    RenderPreview(session, QStringLiteral("ucResolutionPreview"), false);
    RenderPreview(session, QStringLiteral("ucResolutionPreview_Window"), true);
}

}  // namespace Scenes
