#include "ui/shortcuts/ucWizard_TitleArea.h"

#include <QLabel>
#include <QVBoxLayout>

#include "error/mError.h"
#include "ui/Named.h"
#include "ui/QtText.h"
#include "ui/controls/HLine.h"

ucWizard_TitleArea::ucWizard_TitleArea(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("ucWizard_TitleArea"));
    Shape1 = Named<QWidget>(this, QStringLiteral("Shape1"));
    Shape1->setBackgroundRole(QPalette::Base);
    Shape1->setAutoFillBackground(true);
    lblStep = WrappedLabel(Shape1, "lblStep");
    QFont bold = lblStep->font();
    bold.setBold(true);
    lblStep->setFont(bold);
    lblStepDesc = WrappedLabel(Shape1, "lblStepDesc");
    lblStepTask = WrappedLabel(Shape1, "lblStepTask");
    lblStepTask->setIndent(fontMetrics().averageCharWidth() * 3);
    Line1 = Named<HLine>(this, QStringLiteral("Line1"));
    auto* texts = new QVBoxLayout(Shape1);
    texts->addWidget(lblStep);
    texts->addWidget(lblStepDesc);
    texts->addWidget(lblStepTask);
    texts->addStretch();
    // The texts stand on the base colour, so they take the text colour that goes with it.
    for (QLabel* label : {lblStep, lblStepDesc, lblStepTask})
        label->setForegroundRole(QPalette::Text);
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
