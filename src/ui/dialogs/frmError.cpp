#include "ui/dialogs/frmError.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QStyle>
#include <QTabBar>
#include <QVBoxLayout>

#include "Version.h"
#include "app/Application.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "platform/Platform.h"
#include "translate/cTranslate.h"
#include "ui/EntryPoint.h"
#include "ui/QtText.h"
#include "ui/dialogs/MnemonicSet.h"

namespace {

// A failure may arrive before the translation engine exists; the window then speaks English.
bool CanTranslate() {
    return g_cApp && g_cTranslate;
}

// The texts of the report are worth copying, so every label of it can be selected.
QLabel* SelectableLabel(QLabel* label) {
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

QPlainTextEdit* ReadOnlyText(const QString& name, QWidget* parent) {
    auto* text = new QPlainTextEdit(parent);
    text->setObjectName(name);
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return text;
}

QHBoxLayout* RightAligned(QWidget* widget) {
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(widget);
    return row;
}

}  // namespace

frmError::frmError(QWidget* parent) : ModalDialog("frmError", "ERROR_DIALOG", parent) {
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(CreateHeader());
    layout->addLayout(CreateTabbedPages(), 1);
    layout->addWidget(CreateButtonRow());
    ConnectEntryPoint(TabStrip1, &QTabBar::currentChanged, this, &frmError::TabStrip1_Click,
                      "frmError.TabStrip1_Click");
    SetTabOrder();
    TranslateDialog();
}

QWidget* frmError::CreateHeader() {
    auto* header = new QWidget(this);
    auto* layout = new QGridLayout(header);
    layout->setContentsMargins(0, 0, 0, 0);
    lblIcon = new QLabel(header);
    lblIcon->setObjectName(QStringLiteral("lblIcon"));
    const int iconSize = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    lblIcon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxCritical, nullptr, this).pixmap(iconSize));
    lblDescription = SelectableLabel(WrappedLabel("lblDescription", header));
    txtDescription = ReadOnlyText(QStringLiteral("txtDescription"), header);
    txtDescription->setMaximumHeight(fontMetrics().lineSpacing() * 3);
    lblDescription->setBuddy(txtDescription);
    layout->addWidget(lblIcon, 0, 0, 2, 1, Qt::AlignTop);
    layout->addWidget(lblDescription, 0, 1);
    layout->addWidget(txtDescription, 1, 1);
    return header;
}

// The tab strip sits on the framed page area below it, as tabs do.
QVBoxLayout* frmError::CreateTabbedPages() {
    TabStrip1 = new QTabBar(this);
    TabStrip1->setObjectName(QStringLiteral("TabStrip1"));
    TabStrip1->setExpanding(false);
    TabStrip1->addTab(QString());
    TabStrip1->addTab(QString());
    pages = new QStackedWidget(this);
    pages->setFrameShape(QFrame::StyledPanel);
    pages->addWidget(CreateReportPage());
    pages->addWidget(CreateContactPage());
    auto* tabbed = new QVBoxLayout;
    tabbed->setSpacing(0);
    tabbed->addWidget(TabStrip1);
    tabbed->addWidget(pages, 1);
    return tabbed;
}

QWidget* frmError::CreateReportPage() {
    auto* page = new QWidget(this);
    page->setObjectName(QStringLiteral("picPage_0"));
    auto* layout = new QVBoxLayout(page);
    lblNote = SelectableLabel(WrappedLabel("lblNote", page));
    txtErrorNote = ReadOnlyText(QStringLiteral("txtErrorNote"), page);
    txtErrorNote->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    txtErrorNote->setLineWrapMode(QPlainTextEdit::NoWrap);
    const QFontMetrics metrics(txtErrorNote->font());
    txtErrorNote->setMinimumSize(metrics.horizontalAdvance(QLatin1Char('x')) * 64,
                                 metrics.lineSpacing() * 16);
    lblNote->setBuddy(txtErrorNote);
    cmdContact = Button("cmdContact", page);
    ConnectEntryPoint(cmdContact, &QPushButton::clicked, this, &frmError::cmdContact_Click,
                      "frmError.cmdContact_Click");
    layout->addWidget(lblNote);
    layout->addWidget(txtErrorNote, 1);
    layout->addLayout(RightAligned(cmdContact));
    return page;
}

QWidget* frmError::CreateContactPage() {
    auto* page = new QWidget(this);
    page->setObjectName(QStringLiteral("picPage_1"));
    auto* layout = new QVBoxLayout(page);
    lblContactInfo = SelectableLabel(WrappedLabel("lblContactInfo", page));
    lblAddress = SelectableLabel(WrappedLabel("lblAddress", page));
    lblAddress->setText(QString::fromUtf8(Version::kContactEmail));
    cmdDetails = Button("cmdDetails", page);
    ConnectEntryPoint(cmdDetails, &QPushButton::clicked, this, &frmError::cmdDetails_Click,
                      "frmError.cmdDetails_Click");
    layout->addWidget(lblContactInfo);
    layout->addWidget(lblAddress);
    layout->addStretch();
    layout->addLayout(RightAligned(cmdDetails));
    return page;
}

QWidget* frmError::CreateButtonRow() {
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    cmdCopy = Button("cmdCopy", row);
    Command1 = Button("Command1", row);
    cmdClose = Button("cmdClose", row);
    cmdCopy->setDefault(true);
    ConnectEntryPoint(cmdCopy, &QPushButton::clicked, this, &frmError::cmdCopy_Click,
                      "frmError.cmdCopy_Click");
    ConnectEntryPoint(Command1, &QPushButton::clicked, this, &frmError::Command1_Click,
                      "frmError.Command1_Click");
    ConnectEntryPoint(cmdClose, &QPushButton::clicked, this, &frmError::cmdClose_Click,
                      "frmError.cmdClose_Click");
    layout->addWidget(cmdCopy);
    layout->addWidget(Command1);
    layout->addStretch();
    layout->addWidget(cmdClose);
    return row;
}

void frmError::SetTabOrder() {
    QWidget* const order[] = {txtDescription, TabStrip1, txtErrorNote, cmdContact,
                              cmdDetails,     cmdCopy,   Command1,     cmdClose};
    for (std::size_t i = 0; i + 1 < std::size(order); ++i)
        setTabOrder(order[i], order[i + 1]);
}

QString frmError::DialogText(const char* key, const char* english) const {
    return CanTranslate() ? ItemText(key) : QString::fromUtf8(english);
}

void frmError::TranslateDialog() {
    setWindowTitle(DialogText("DIALOG_CAPTION", "Error Report"));
    TabStrip1->setTabText(kReportPage, DialogText("TAB_REPORT", "Report"));
    TabStrip1->setTabText(kContactPage, DialogText("TAB_CONTACT", "Contact"));
    lblNote->setText(QStringLiteral("Please send an E-Mail with the following text to ") +
                     QString::fromUtf8(Version::kContactEmail));
    lblContactInfo->setText(DialogText("LBL_CONTACT_INFO",
                                       "Please help us fix this error: click Copy to put the report on the "
                                       "clipboard, then click Write E-mail and paste the report into the new "
                                       "message."));
    MnemonicSet keys;
    lblDescription->setText(keys.Add(DialogText("LBL_DESCRIPTION", "An error has occurred:")));
    cmdCopy->setText(keys.Add(DialogText("BTN_COPY", "Copy")));
    Command1->setText(keys.Add(DialogText("BTN_SEND_MAIL", "Write E-mail")));
    cmdContact->setText(keys.Add(DialogText("BTN_CONTACT", "Contact")));
    cmdDetails->setText(keys.Add(DialogText("BTN_DETAILS", "Details")));
    cmdClose->setText(keys.Add(CanTranslate() ? GlobalText("BTN_CLOSE") : QStringLiteral("Close")));
}

void frmError::InitDialog(const ErrorReport& report) try {
    m_report = report;
    txtDescription->setPlainText(QtText::ToQtLines(report.description));
    txtErrorNote->setPlainText(QtText::ToQtLines(report.text));
    TabStrip1->setCurrentIndex(kReportPage);
    cmdCopy->setFocus();
} catch (...) {
    mError::PassOn("frmError.InitDialog");
}

void frmError::ActivatePage(int index) try { pages->setCurrentIndex(index); } catch (...) {
    mError::PassOn("frmError.ActivatePage");
}

void frmError::ShowPage(Page page) {
    TabStrip1->setCurrentIndex(page);
    Command1->setFocus();
}

void frmError::TabStrip1_Click(int index) {
    ActivatePage(index);
}

void frmError::cmdContact_Click() {
    ShowPage(kContactPage);
}

void frmError::cmdDetails_Click() {
    ShowPage(kReportPage);
}

void frmError::cmdCopy_Click() {
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setText(QtText::ToQt(m_report.text));
}

// Before the application object exists there is nobody to ask, so the mail goes straight to the shell.
void frmError::Command1_Click() {
    const auto owner = static_cast<int64_t>(winId());
    if (g_cApp)
        g_cApp->ContactAuthor(owner);
    else
        Os().ShellExec(owner, "open", Application::ContactAddress(), "", "", kSwShowNormal);
}

void frmError::cmdClose_Click() {
    close();
}
