#include "ui/controls/HLine.h"

#include <QPainter>

#include "error/mError.h"

// The rule reports its failures under the path field's module name, "ucPath.": report names are data that
// error reports sent in by users are matched against, so they stay as they are.

namespace {

constexpr int kHeight = 20;
constexpr int kLineY = 10;

}  // namespace

HLine::HLine(QWidget* parent) : QWidget(parent) {
    m_backColor = DefaultBackColor();
    setFixedHeight(kHeight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    UserControl_Resize();
}

QColor HLine::BackColor() const {
    return mError::WithTrail("ucPath.Get BackColor", [this] { return m_backColor; });
}

void HLine::SetBackColor(const QColor& value) try {
    m_backColor = value;
    update();
} catch (...) {
    mError::PassOn("ucPath.Let BackColor");
}

QSize HLine::sizeHint() const {
    return QSize(200, kHeight);
}

void HLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), m_backColor);
    painter.setPen(QPen(palette().color(QPalette::Dark), 1));
    painter.drawLine(m_line1);
    painter.setPen(QPen(palette().color(QPalette::Light), 1));
    painter.drawLine(m_line2);
}

void HLine::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    UserControl_Resize();
}

void HLine::UserControl_Resize() try {
    setFixedHeight(kHeight);
    m_line1 = QLine(0, kLineY, width(), kLineY);
    m_line2 = QLine(0, kLineY + 1, width(), kLineY + 1);
} catch (...) {
    mError::ShowError("ucPath.UserControl_Resize");
}

QColor HLine::DefaultBackColor() const {
    return palette().color(QPalette::Button);
}
