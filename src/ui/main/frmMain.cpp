#include "ui/main/frmMain.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "error/mError.h"
#include "ui/Named.h"
#include "ui/controls/TabRow.h"
#include "ui/controls/ucTab.h"
#include "ui/controls/ucTabArea.h"
#include "ui/main/DisplayPage.h"
#include "ui/main/ExtraPage.h"
#include "ui/main/GamePage.h"
#include "ui/main/RefreshPage.h"
#include "ui/main/ScenarioPage.h"

namespace {

// Where a page lies inside the tab area: 6 from the left and right, 10 from the top, 7 from the bottom.
constexpr int kPageLeft = 6;
constexpr int kPageTop = 10;
constexpr int kPageWidthLoss = 12;
constexpr int kPageHeightLoss = 17;

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
    ConnectCommands();
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
    m_game = new GamePage(Shape1);
    m_scenario = new ScenarioPage(Shape1);
    m_display =
        new DisplayPage(Shape1, [this](const char* key, QWidget* focus) { TellCorrection(key, focus); });
    m_refresh = new RefreshPage(Shape1);
    m_extra = new ExtraPage(Shape1);
    picPage = {nullptr, m_game, m_scenario, m_display, m_refresh, m_extra};
    for (int i = 1; i <= kTabCount; ++i)
        connect(picPage[i], &MainPage::ValueChanged, this, &frmMain::ControlChanged);
    tabHost->installEventFilter(this);
    return tabHost;
}

// The version line and, beside the start button, the command line that Start will give the game.
QWidget* frmMain::CreateStartRow() {
    auto* row = new QWidget(this);
    lblVersion = Named<QLabel>(row, QStringLiteral("lblVersion"));
    txtCommandLine = Named<QLineEdit>(row, QStringLiteral("txtCommandLine"));
    txtCommandLine->setReadOnly(true);
    cmdStart = Named<QPushButton>(row, QStringLiteral("cmdStart"));
    cmdStart->setDefault(true);
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

// The tab area keeps the active page in place when the window lays itself out.
bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (watched == tabHost && event->type() == QEvent::Resize) {
        mError::AsEntryPoint("frmMain.Form_Resize", [this] {
            PlaceTabs();
            for (int i = 0; i < kTabCount; ++i) {
                if (ucTab1[i]->IsActive())
                    ActivatePage(i + 1);
            }
        });
    }
    return QMainWindow::eventFilter(watched, event);
}
