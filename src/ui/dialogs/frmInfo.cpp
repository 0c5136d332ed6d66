#include "ui/dialogs/frmInfo.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "Version.h"
#include "app/Application.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "ui/QtText.h"
#include "ui/controls/TabRow.h"
#include "ui/controls/ucTab.h"
#include "ui/controls/ucTabArea.h"

namespace {

// The margin between the tab area's frame and its page.
constexpr int kPageMargin = 6;

QLabel* Link(QWidget* parent, const char* name, const QString& address, const QString& shown) {
    auto* label = new QLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setText(
        QStringLiteral("<a href=\"%1\">%2</a>").arg(address.toHtmlEscaped(), shown.toHtmlEscaped()));
    label->setTextFormat(Qt::RichText);
    label->setTextInteractionFlags(Qt::TextBrowserInteraction);
    return label;
}

}  // namespace

frmInfo::frmInfo(QWidget* parent) : ModalDialog("frmInfo", "INFO_DIALOG", parent) {
    tabHost = new QWidget(this);
    Shape1 = new ucTabArea(tabHost);
    Shape1->setObjectName(QStringLiteral("Shape1"));
    for (int i = 0; i < kPageCount; ++i) {
        ucTab1[i] = new ucTab(tabHost);
        ucTab1[i]->setObjectName(QStringLiteral("ucTab1_%1").arg(i));
        connect(ucTab1[i], &ucTab::Click, this, [this, i] { ucTab1_Click(i); });
    }
    picPage = {CreateInfoPage(), CreateCreditsPage(), CreateContactPage()};
    cmdClose = Button("cmdClose");
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tabHost, 1);
    layout->addLayout(ButtonRow({cmdClose}));
}

QWidget* frmInfo::CreateInfoPage() {
    auto* page = new QWidget(Shape1);
    page->setObjectName(QStringLiteral("picPage_0"));
    lblProgram = new QLabel(page);
    lblProgram->setObjectName(QStringLiteral("lblProgram"));
    lblProgram->setText(QStringLiteral("<b>Pavonel %1</b>").arg(QtText::ToQt(Application::VersionText())));
    lblDescription = WrappedLabel("lblDescription", page);
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(lblProgram);
    layout->addWidget(lblDescription);
    layout->addStretch();
    return page;
}

QWidget* frmInfo::CreateCreditsPage() {
    auto* page = new QWidget(Shape1);
    page->setObjectName(QStringLiteral("picPage_1"));
    lblCredits = WrappedLabel("lblCredits", page);
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(lblCredits);
    layout->addStretch();
    return page;
}

QWidget* frmInfo::CreateContactPage() {
    auto* page = new QWidget(Shape1);
    page->setObjectName(QStringLiteral("picPage_2"));
    lblWebpage = WrappedLabel("lblWebpage", page);
    lblEmail = WrappedLabel("lblEmail", page);
    lblWebpageLink = Link(page, "lblWebpageLink", QtText::ToQt(Application::WebpageAddress()),
                          QtText::ToQt(Application::WebpageAddress()));
    lblEmailLink = Link(page, "lblEmailLink", QtText::ToQt(Application::ContactAddress()),
                        QString::fromUtf8(Version::kContactEmail));
    // The links open through the application, as the menu's commands do.
    connect(lblWebpageLink, &QLabel::linkActivated, this, [this] {
        try {
            App().ShowPavonelWebpage(static_cast<int64_t>(winId()));
        } catch (...) {
            mError::ShowError("frmInfo.lblWebpageLink_Click");
        }
    });
    connect(lblEmailLink, &QLabel::linkActivated, this, [this] {
        try {
            App().ContactAuthor(static_cast<int64_t>(winId()));
        } catch (...) {
            mError::ShowError("frmInfo.lblEmailLink_Click");
        }
    });
    auto* layout = new QGridLayout(page);
    layout->addWidget(lblWebpage, 0, 0);
    layout->addWidget(lblWebpageLink, 0, 1);
    layout->addWidget(lblEmail, 1, 0);
    layout->addWidget(lblEmailLink, 1, 1);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(2, 1);
    return page;
}

void frmInfo::InitDialog() try {
    TranslateDialog();
    ucTab1_Click(0);
    cmdClose->setFocus();
} catch (...) {
    mError::PassOn("frmInfo.InitDialog");
}

void frmInfo::TranslateDialog() try {
    setWindowTitle(ItemText("DIALOG_CAPTION"));
    static constexpr const char* kTabs[kPageCount] = {"TAB_INFO", "TAB_CREDITS", "TAB_CONTACT"};
    for (int i = 0; i < kPageCount; ++i)
        ucTab1[i]->SetCaption(ItemText(kTabs[i]));
    lblDescription->setText(ItemText("LBL_DESCRIPTION"));
    lblCredits->setText(ItemText("LBL_CREDITS"));
    lblWebpage->setText(ItemText("LBL_WEBPAGE"));
    lblEmail->setText(ItemText("LBL_EMAIL"));
    cmdClose->setText(GlobalText("BTN_CLOSE"));
    PlacePages();
} catch (...) {
    mError::PassOn("frmInfo.TranslateDialog");
}

void frmInfo::ucTab1_Click(int index) try {
    for (int i = 0; i < kPageCount; ++i) {
        ucTab1[i]->SetIsActive(i == index);
        picPage[i]->setVisible(i == index);
    }
} catch (...) {
    mError::ShowError("frmInfo.ucTab1_Click");
}

// The tabs stand on the area's upper edge; every page fills the area inside its frame.
void frmInfo::PlacePages() {
    QSize page(fontMetrics().averageCharWidth() * 48, fontMetrics().height() * 6);
    for (QWidget* each : picPage)
        page = page.expandedTo(each->sizeHint());
    TabRow::Place(ucTab1, *Shape1, page, QSize(2 * kPageMargin, 2 * kPageMargin));
    for (QWidget* each : picPage)
        each->setGeometry(Shape1->rect().adjusted(kPageMargin, kPageMargin, -kPageMargin, -kPageMargin));
}

void frmInfo::resizeEvent(QResizeEvent* event) {
    ModalDialog::resizeEvent(event);
    PlacePages();
}
