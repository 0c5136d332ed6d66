#include "StandInWindow.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWidget>

int ShowStandInWindow(int argc, char** argv, const std::string& directory) {
    QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Tarvolin stand-in"));
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(new QLabel(QStringLiteral("<b>The Tarvolin stand-in was started.</b>")));
    auto* folder = new QLabel(QStringLiteral("Working directory: %1").arg(QString::fromStdString(directory)));
    folder->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(folder);
    layout->addWidget(new QLabel(QStringLiteral("Arguments (%1), one per line:").arg(argc - 1)));
    auto* arguments = new QListWidget;
    for (int i = 1; i < argc; ++i)
        arguments->addItem(QString::fromLocal8Bit(argv[i]));
    layout->addWidget(arguments);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &window, &QWidget::close);
    layout->addWidget(buttons);
    buttons->button(QDialogButtonBox::Close)->setFocus();
    window.resize(520, 300);
    window.show();
    return application.exec();
}
