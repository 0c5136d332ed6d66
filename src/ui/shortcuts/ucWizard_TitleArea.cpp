#include "ui/shortcuts/ucWizard_TitleArea.h"

#include <QLabel>
#include <QVBoxLayout>

#include "error/mError.h"
#include "ui/Named.h"
#include "ui/QtText.h"
#include "ui/controls/HLine.h"

namespace {

QLabel* TitleLabel(const char* name, QWidget* parent) {
    auto* label = Named<QLabel>(parent, QString::fromLatin1(name));
    label->setWordWrap(true);
    return label;
}

}  // namespace

ucWizard_TitleArea::ucWizard_TitleArea(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("ucWizard_TitleArea"));
    Shape1 = Named<QWidget>(this, QStringLiteral("Shape1"));
    Shape1->setBackgroundRole(QPalette::Base);
    Shape1->setAutoFillBackground(true);
    lblStep = TitleLabel("lblStep", Shape1);
    QFont bold = lblStep->font();
    bold.setBold(true);
    lblStep->setFont(bold);
    lblStepDesc = TitleLabel("lblStepDesc", Shape1);
    lblStepTask = TitleLabel("lblStepTask", Shape1);
    lblStepTask->setIndent(fontMetrics().averageCharWidth() * 3);
    Line1 = Named<HLine>(this, QStringLiteral("Line1"));
    auto* texts = new QVBoxLayout(Shape1);
    texts->addWidget(lblStep);
    texts->addWidget(lblStepDesc);
    texts->addWidget(lblStepTask);
    texts->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(Shape1);
    layout->addWidget(Line1);
}

void ucWizard_TitleArea::SetTexts(const std::string& step, const std::string& stepDesc,
                                  const std::string& stepTask) try {
    lblStep->setText(QtText::ToQt(step));
    lblStepDesc->setText(QtText::ToQt(stepDesc));
    lblStepTask->setText(QtText::ToQt(stepTask));
} catch (...) {
    mError::ShowError("SetTexts");
}
