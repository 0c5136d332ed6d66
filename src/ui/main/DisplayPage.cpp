#include "ui/main/DisplayPage.h"

#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "error/mError.h"
#include "mainwindow/frmMainRules.h"
#include "ui/Named.h"
#include "ui/QtText.h"
#include "ui/controls/AccessibleChoice.h"
#include "ui/dialogs/MnemonicSet.h"
#include "ui/main/ucResolutionPreview.h"

DisplayPage::DisplayPage(QWidget* parent, Teller tellCorrection)
    : MainPage(parent, 3), m_tellCorrection(std::move(tellCorrection)) {
    frmResolution = Named<QGroupBox>(this, QStringLiteral("frmResolution"));
    for (int i = 0; i < 2; ++i)
        opResolution[i] = Named<QRadioButton>(frmResolution, QStringLiteral("opResolution_%1").arg(i));
    lstResolution = Named<QListWidget>(frmResolution, QStringLiteral("lstResolution"));
    lstResolution->setMaximumHeight(fontMetrics().lineSpacing() * 6);
    for (int i = 0; i < kListEntries; ++i)
        lstResolution->addItem(QString());
    AccessibleChoice::Follow(*lstResolution);
    lblwidth_heigth = Named<QLabel>(frmResolution, QStringLiteral("lblwidth_heigth"));
    txtRes_Width = Named<QLineEdit>(frmResolution, QStringLiteral("txtRes_Width"));
    txtRes_Height = Named<QLineEdit>(frmResolution, QStringLiteral("txtRes_Height"));
    lblwidth_heigth->setBuddy(txtRes_Width);
    UserControl11 = Named<ucResolutionPreview>(frmResolution, QStringLiteral("UserControl11"));
    UserControl11->installEventFilter(this);
    lblResolution_Warning = WrappedLabel(this, "lblResolution_Warning");
    Image1 = Named<QLabel>(this, QStringLiteral("Image1"));
    Image1->hide();
    BuildLayout();
    ConnectFields();
}

void DisplayPage::BuildLayout() {
    // The list stands between the two choices on the page, and so it does in the tab order.
    setTabOrder(opResolution[0], lstResolution);
    setTabOrder(lstResolution, opResolution[1]);
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
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frmResolution);
    layout->addWidget(lblResolution_Warning);
    layout->addStretch();
}

// The fields take only digits, also when text is pasted or dropped; every key reaches the page first.
void DisplayPage::ConnectFields() {
    connect(lstResolution, &QListWidget::currentRowChanged, this, [this] { lstResolution_Click(); });
    connect(lstResolution, &QListWidget::itemClicked, this, [this] { lstResolution_Click(); });
    connect(opResolution[0], &QRadioButton::toggled, this,
            [this] { emit ValueChanged("frmMain.opResolution_Click"); });
    for (auto [field, name] : {std::pair{txtRes_Width, "frmMain.txtRes_Width"},
                               std::pair{txtRes_Height, "frmMain.txtRes_Height"}}) {
        field->setMaxLength(5);
        field->setMaximumWidth(fontMetrics().averageCharWidth() * 8);
        field->installEventFilter(this);
        field->setValidator(
            new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), field));
        const std::string procedure = name;
        connect(field, &QLineEdit::textChanged, this,
                [this, change = procedure + "_Change"] { emit ValueChanged(change.c_str()); });
        connect(field, &QLineEdit::editingFinished, this, [this, procedure] {
            mError::AsEntryPoint(procedure + "_LostFocus", [this] { CorrectInput(); });
        });
    }
}

void DisplayPage::ShowValues(const MainWindowValues& values) {
    const QScopedValueRollback<bool> loading(m_loading, true);
    opResolution[values.standardResolution ? 0 : 1]->setChecked(true);
    lstResolution->setCurrentRow(values.resolution - 1);
    txtRes_Width->setText(QtText::ToQt(values.width));
    txtRes_Height->setText(QtText::ToQt(values.height));
}

// The chosen standard resolution's ID, 0 without a choice.
int DisplayPage::Resolution() const {
    return lstResolution->currentRow() + 1;
}

void DisplayPage::HandBack(MainWindowValues& values) const {
    values.standardResolution = opResolution[0]->isChecked();
    values.resolution = Resolution();
    values.width = QtText::FromQt(txtRes_Width->text());
    values.height = QtText::FromQt(txtRes_Height->text());
}

void DisplayPage::CorrectInput() try {
    MainWindowValues values;
    HandBack(values);
    const frmMainRules::ResolutionCorrection corrected = frmMainRules::CorrectInput(values);
    if (corrected.height) {
        txtRes_Height->setText(QtText::ToQt(*corrected.height));
        m_tellCorrection("MSG_ResolutionHeigthChanged", nullptr);
    }
    if (corrected.width) {
        txtRes_Width->setText(QtText::ToQt(*corrected.width));
        m_tellCorrection("MSG_ResolutionWidthChanged", txtRes_Width);
    }
} catch (...) {
    mError::PassOn("frmMain.CorrectInput");
}

void DisplayPage::lstResolution_Click() {
    const bool shown = mError::AsEntryPoint("frmMain.lstResolution_Click", [this] {
        if (!m_loading)
            opResolution[0]->setChecked(true);
        ShowPreview();
    });
    if (shown)
        emit ValueChanged("frmMain.lstResolution_Click");
}

void DisplayPage::ShowPreview() {
    if (const auto preview = frmMainRules::PreviewFor(Resolution()))
        UserControl11->SetResolution(preview->width, preview->height, preview->fillArea);
}

// The picture is given when the preview first shows: the first picture a program decodes costs it about a
// millisecond, and the preview's page is not the first.
void DisplayPage::Form_Load() {
    mError::AsEntryPoint("frmMain.Form_Load", [this] {
        Image1->setPixmap(ucResolutionPreview::SamplePicture());
        UserControl11->SetPicture(Image1->pixmap());
        ShowPreview();
    });
}

// Typing into a resolution field switches to the user-defined mode; only digits and backspace get in.
// Keys that type nothing (Tab, the arrows, Delete) pass as they always do.
bool DisplayPage::ResolutionField_KeyPress(const QKeyEvent& event) {
    const QString text = event.text();
    if (text.isEmpty() || !frmMainRules::TypesIntoResolutionField(text.at(0).unicode()))
        return false;
    opResolution[1]->setChecked(true);
    return !frmMainRules::IsResolutionKey(text.at(0).unicode());
}

// A click into a resolution field chooses the user-defined mode, as typing does.
bool DisplayPage::eventFilter(QObject* watched, QEvent* event) {
    if (watched == UserControl11 && event->type() == QEvent::Show) {
        UserControl11->removeEventFilter(this);
        Form_Load();
    }
    if (watched != txtRes_Width && watched != txtRes_Height)
        return MainPage::eventFilter(watched, event);
    const bool key = event->type() == QEvent::KeyPress;
    if (!key && event->type() != QEvent::MouseButtonPress)
        return MainPage::eventFilter(watched, event);
    const std::string field = watched == txtRes_Width ? "frmMain.txtRes_Width" : "frmMain.txtRes_Height";
    bool swallowed = false;
    mError::AsEntryPoint(field + (key ? "_KeyPress" : "_Click"), [&] {
        if (key)
            swallowed = ResolutionField_KeyPress(*static_cast<QKeyEvent*>(event));
        else
            opResolution[1]->setChecked(true);
    });
    return swallowed || MainPage::eventFilter(watched, event);
}

void DisplayPage::Retranslate(MnemonicSet& keys) {
    opResolution[0]->setText(keys.Add(Text("OP_STANDARD_RESOLUTION")));
    opResolution[1]->setText(keys.Add(Text("OP_USERDEFINED_RESOLUTION")));
    lblwidth_heigth->setText(keys.Add(Text("LBL_RESOLUTION_WIDTH_HEIGTH")));
    // Fields without a label of their own are named for screen readers.
    txtRes_Height->setAccessibleName(Text("LBL_RESOLUTION_WIDTH_HEIGTH"));
    lstResolution->setAccessibleName(Text("OP_STANDARD_RESOLUTION"));
    frmResolution->setTitle(Text("LBL_RESOLUTION_FRAME"));
    lblResolution_Warning->setText(Text("LBL_RESOLUTION_WARNING"));
    for (int i = 0; i < kListEntries; ++i)
        lstResolution->item(i)->setText(Text(("LST_RESOLUTION_" + std::to_string(i + 1)).c_str()));
}
