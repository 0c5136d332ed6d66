#include "ui/main/frmMain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "error/mError.h"
#include "ui/Named.h"
#include "ui/controls/TabRow.h"
#include "ui/controls/ucPath.h"
#include "ui/controls/ucTab.h"
#include "ui/controls/ucTabArea.h"
#include "ui/main/ucResolutionPreview.h"

namespace {

// Where a page lies inside the tab area: 6 from the left and right, 10 from the top, 7 from the bottom.
constexpr int kPageLeft = 6;
constexpr int kPageTop = 10;
constexpr int kPageWidthLoss = 12;
constexpr int kPageHeightLoss = 17;

QComboBox* EditableList(QWidget* parent, const char* name) {
    auto* list = Named<QComboBox>(parent, QString::fromLatin1(name));
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    return list;
}

}  // namespace

frmMain::frmMain(QWidget* parent) : QMainWindow(parent) {
    setObjectName(QStringLiteral("frmMain"));
    auto* central = new QWidget(this);
    auto* layout = new QVBoxLayout(central);
    layout->addWidget(CreateTabbedPages(), 1);
    layout->addWidget(CreateStartRow());
    setCentralWidget(central);
    setMinimumWidth(fontMetrics().averageCharWidth() * 110);
    CreateMenus();
    ConnectBinding();
    ConnectCommands();
    Form_Load();
}

// The tabs stand in a row on the tab area's upper edge, which they overlap by one pixel so that the
// active one opens into its page; the pages lie inside the area.
QWidget* frmMain::CreateTabbedPages() {
    tabHost = Named<QWidget>(this, QStringLiteral("tabHost"));
    Shape1 = Named<ucTabArea>(tabHost, QStringLiteral("Shape1"));
    for (int i = 0; i < kTabCount; ++i) {
        ucTab1[i] = Named<ucTab>(tabHost, QStringLiteral("ucTab1_%1").arg(i));
        connect(ucTab1[i], &ucTab::Click, this, [this, i] { ucTab1_Click(i); });
    }
    const std::array<QWidget*, kTabCount> pages = {
        CreateGamePage(), CreateScenarioPage(), CreateDisplayPage(), CreateRefreshPage(), CreateExtraPage()};
    for (int i = 0; i < kTabCount; ++i)
        picPage[i + 1] = pages[i];
    tabHost->installEventFilter(this);
    return tabHost;
}

QWidget* frmMain::NewPage(int index) {
    return Named<QWidget>(Shape1, QStringLiteral("picPage_%1").arg(index));
}

QWidget* frmMain::CreateGamePage() {
    QWidget* page = NewPage(1);
    lblTarvoPath = Named<QLabel>(page, QStringLiteral("lblTarvoPath"));
    txtTarvolinPath = Named<ucPath>(page, QStringLiteral("txtTarvolinPath"));
    txtTarvolinPath->SetAcceptFiles(true);
    lblTarvoPath->setBuddy(txtTarvolinPath);
    cmdSelectTarvoPath = Named<QPushButton>(page, QStringLiteral("cmdSelectTarvoPath"));
    ckLogMessages = Named<QCheckBox>(page, QStringLiteral("ckLogMessages"));
    lblLogMsg = WrappedLabel(page, "lblLogMsg");
    ckFreeplay = Named<QCheckBox>(page, QStringLiteral("ckFreeplay"));
    lblFreeplayMode_Desc = WrappedLabel(page, "lblFreeplayMode_Desc");
    cmdLogfile2 = Named<QPushButton>(page, QStringLiteral("cmdLogfile2"));

    auto* layout = new QGridLayout(page);
    layout->addWidget(lblTarvoPath, 0, 0, 1, 2);
    layout->addWidget(txtTarvolinPath, 1, 0);
    layout->addWidget(cmdSelectTarvoPath, 1, 1);
    layout->setRowMinimumHeight(2, fontMetrics().height() / 2);
    layout->addWidget(ckLogMessages, 3, 0, 1, 2);
    layout->addWidget(lblLogMsg, 4, 0, 1, 2);
    layout->addWidget(ckFreeplay, 5, 0, 1, 2);
    layout->addWidget(lblFreeplayMode_Desc, 6, 0, 1, 2);
    layout->setRowStretch(7, 1);
    layout->addWidget(cmdLogfile2, 8, 1);
    layout->setColumnStretch(0, 1);
    return page;
}

QWidget* frmMain::CreateScenarioPage() {
    QWidget* page = NewPage(2);
    lblScenarios = Named<QLabel>(page, QStringLiteral("lblScenarios"));
    txtScenario = EditableList(page, "txtScenario");
    lblScenarioInfo = WrappedLabel(page, "lblScenarioInfo");
    lblGraphicPak = Named<QLabel>(page, QStringLiteral("lblGraphicPak"));
    txtGraphicPack = EditableList(page, "txtGraphicPack");
    lblGraphicPakInfo = WrappedLabel(page, "lblGraphicPakInfo");
    lblScenarios->setBuddy(txtScenario);
    lblGraphicPak->setBuddy(txtGraphicPack);
    auto* layout = new QVBoxLayout(page);
    for (QWidget* widget : {static_cast<QWidget*>(lblScenarios), static_cast<QWidget*>(txtScenario),
                            static_cast<QWidget*>(lblScenarioInfo)})
        layout->addWidget(widget);
    layout->addSpacing(fontMetrics().height());
    for (QWidget* widget : {static_cast<QWidget*>(lblGraphicPak), static_cast<QWidget*>(txtGraphicPack),
                            static_cast<QWidget*>(lblGraphicPakInfo)})
        layout->addWidget(widget);
    layout->addStretch();
    return page;
}

QWidget* frmMain::CreateDisplayPage() {
    QWidget* page = NewPage(3);
    frmResolution = Named<QGroupBox>(page, QStringLiteral("frmResolution"));
    for (int i = 0; i < 2; ++i)
        opResolution[i] = Named<QRadioButton>(frmResolution, QStringLiteral("opResolution_%1").arg(i));
    lstResolution = Named<QListWidget>(frmResolution, QStringLiteral("lstResolution"));
    lstResolution->setMaximumHeight(fontMetrics().lineSpacing() * 6);
    lblwidth_heigth = Named<QLabel>(frmResolution, QStringLiteral("lblwidth_heigth"));
    txtRes_Width = Named<QLineEdit>(frmResolution, QStringLiteral("txtRes_Width"));
    txtRes_Height = Named<QLineEdit>(frmResolution, QStringLiteral("txtRes_Height"));
    lblwidth_heigth->setBuddy(txtRes_Width);
    for (QLineEdit* field : {txtRes_Width, txtRes_Height}) {
        field->setMaxLength(5);
        field->setMaximumWidth(fontMetrics().averageCharWidth() * 8);
        field->installEventFilter(this);
    }
    // The list stands between the two choices on the page, and so it does in the tab order.
    setTabOrder(opResolution[0], lstResolution);
    setTabOrder(lstResolution, opResolution[1]);
    UserControl11 = Named<ucResolutionPreview>(frmResolution, QStringLiteral("UserControl11"));
    lblResolution_Warning = WrappedLabel(page, "lblResolution_Warning");

    auto* sizes = new QHBoxLayout;
    sizes->addWidget(txtRes_Width);
    sizes->addWidget(new QLabel(QStringLiteral("x"), frmResolution));
    sizes->addWidget(txtRes_Height);
    sizes->addStretch();
    auto* choices = new QVBoxLayout;
    choices->addWidget(opResolution[0]);
    choices->addWidget(lstResolution);
    choices->addWidget(opResolution[1]);
    choices->addWidget(lblwidth_heigth);
    choices->addLayout(sizes);
    choices->addStretch();
    auto* frame = new QHBoxLayout(frmResolution);
    frame->addLayout(choices, 1);
    frame->addWidget(UserControl11, 0, Qt::AlignTop);
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(frmResolution);
    layout->addWidget(lblResolution_Warning);
    layout->addStretch();
    return page;
}

QWidget* frmMain::CreateRefreshPage() {
    QWidget* page = NewPage(4);
    frmScreenRefresh = Named<QGroupBox>(page, QStringLiteral("frmScreenRefresh"));
    lstRefresh = Named<QListWidget>(frmScreenRefresh, QStringLiteral("lstRefresh"));
    lstRefresh->setMaximumHeight(fontMetrics().lineSpacing() * 6);
    auto* frame = new QVBoxLayout(frmScreenRefresh);
    frame->addWidget(lstRefresh);
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(frmScreenRefresh);
    layout->addStretch();
    return page;
}

QWidget* frmMain::CreateExtraPage() {
    QWidget* page = NewPage(5);
    frmOpenTarvoFolder = Named<QGroupBox>(page, QStringLiteral("frmOpenTarvoFolder"));
    lblOpenTarvoFolder = WrappedLabel(frmOpenTarvoFolder, "lblOpenTarvoFolder");
    cmdOpenTarvoDir = Named<QPushButton>(frmOpenTarvoFolder, QStringLiteral("cmdOpenTarvoDir"));
    frmOpenLogfile = Named<QGroupBox>(page, QStringLiteral("frmOpenLogfile"));
    lblOpenLogfileDesc = WrappedLabel(frmOpenLogfile, "lblOpenLogfileDesc");
    cmdLogfile = Named<QPushButton>(frmOpenLogfile, QStringLiteral("cmdLogfile"));
    auto* layout = new QVBoxLayout(page);
    for (auto [frame, label, button] : {std::tuple{frmOpenTarvoFolder, lblOpenTarvoFolder, cmdOpenTarvoDir},
                                        std::tuple{frmOpenLogfile, lblOpenLogfileDesc, cmdLogfile}}) {
        auto* inside = new QHBoxLayout(frame);
        inside->addWidget(label, 1);
        inside->addWidget(button, 0, Qt::AlignTop);
        layout->addWidget(frame);
    }
    layout->addStretch();
    return page;
}

// The version line and, beside the start button, the command line that Start will give the game.
QWidget* frmMain::CreateStartRow() {
    auto* row = new QWidget(this);
    lblVersion = Named<QLabel>(row, QStringLiteral("lblVersion"));
    txtCommandLine = Named<QLineEdit>(row, QStringLiteral("txtCommandLine"));
    txtCommandLine->setReadOnly(true);
    cmdStart = Named<QPushButton>(row, QStringLiteral("cmdStart"));
    cmdStart->setDefault(true);
    Image1 = Named<QLabel>(row, QStringLiteral("Image1"));
    Image1->hide();
    auto* layout = new QGridLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(lblVersion, 0, 0, 1, 2);
    layout->addWidget(txtCommandLine, 1, 0);
    layout->addWidget(cmdStart, 1, 1);
    layout->setColumnStretch(0, 1);
    return row;
}

// The tab area takes the room the biggest page needs, plus its margins; the tabs sit on its upper edge.
void frmMain::PlaceTabs() {
    QSize page;
    for (int i = 1; i <= kTabCount; ++i)
        page = page.expandedTo(picPage[i]->sizeHint());
    TabRow::Place(ucTab1, *Shape1, page, QSize(kPageWidthLoss, kPageHeightLoss));
}

void frmMain::ucTab1_Click(int index) try {
    ucTab1[index]->SetIsActive(true);
    for (int i = 0; i < kTabCount; ++i) {
        if (i != index)
            ucTab1[i]->SetIsActive(false);
    }
    ActivatePage(index + 1);
} catch (...) {
    mError::ShowError("frmMain.ucTab1_Click");
}

void frmMain::ActivatePage(int page) try {
    const QRect area = Shape1->rect();
    for (int i = 1; i <= kTabCount; ++i) {
        if (i != page) {
            picPage[i]->hide();
            continue;
        }
        picPage[i]->setGeometry(area.left() + kPageLeft, area.top() + kPageTop, area.width() - kPageWidthLoss,
                                area.height() - kPageHeightLoss);
        QPalette palette = picPage[i]->palette();
        palette.setColor(QPalette::Window, Shape1->BackColor());
        picPage[i]->setPalette(palette);
        picPage[i]->setAutoFillBackground(true);
        picPage[i]->show();
    }
} catch (...) {
    mError::PassOn("frmMain.ActivatePage");
}

// The picture is given when the preview first shows: the first picture a program decodes costs it about a
// millisecond, and the preview's page is not the first.
void frmMain::Form_Load() try {
    if (!UserControl11->isVisible()) {
        UserControl11->installEventFilter(this);
        return;
    }
    Image1->setPixmap(ucResolutionPreview::SamplePicture());
    UserControl11->SetPicture(Image1->pixmap());
    ShowPreview();
} catch (...) {
    mError::ShowError("frmMain.Form_Load");
}

// The tab area keeps the active page in place when the window lays itself out; the resolution fields see
// every key first.
bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (watched == UserControl11 && event->type() == QEvent::Show) {
        UserControl11->removeEventFilter(this);
        Form_Load();
    }
    if (watched == tabHost && event->type() == QEvent::Resize) {
        try {
            PlaceTabs();
            for (int i = 0; i < kTabCount; ++i) {
                if (ucTab1[i]->IsActive())
                    ActivatePage(i + 1);
            }
        } catch (...) {
            mError::ShowError("frmMain.Form_Resize");
        }
    }
    if (watched != txtRes_Width && watched != txtRes_Height)
        return QMainWindow::eventFilter(watched, event);
    const std::string field = watched == txtRes_Width ? "frmMain.txtRes_Width" : "frmMain.txtRes_Height";
    try {
        if (event->type() == QEvent::MouseButtonPress)
            opResolution[1]->setChecked(true);
        if (event->type() == QEvent::KeyPress)
            return ResolutionField_KeyPress(*static_cast<QKeyEvent*>(event));
    } catch (...) {
        mError::ShowError(field + (event->type() == QEvent::KeyPress ? "_KeyPress" : "_Click"));
    }
    return QMainWindow::eventFilter(watched, event);
}
