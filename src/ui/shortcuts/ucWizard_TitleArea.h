// A wizard's title band: the wizard's title in bold, the page's text and its task, on the window colour of
// text fields and closed by a rule.
#pragma once

#include <QWidget>
#include <string>

class HLine;
class QLabel;

class ucWizard_TitleArea : public QWidget {
    Q_OBJECT

public:
    explicit ucWizard_TitleArea(QWidget* parent = nullptr);

    void SetTexts(const std::string& step, const std::string& stepDesc, const std::string& stepTask);

private:
    QLabel* lblStep;
    QLabel* lblStepDesc;
    QLabel* lblStepTask;
    QWidget* Shape1;
    HLine* Line1;
};
