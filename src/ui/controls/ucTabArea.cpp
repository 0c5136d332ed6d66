#include "ui/controls/ucTabArea.h"

#include <QPainter>

#include "error/mError.h"
#include "ui/controls/Contrast.h"
#include "ui/controls/TabColours.h"

ucTabArea::ucTabArea(QWidget* parent)
    : QWidget(parent), m_borderColor(TabColours::kBorder), m_backColor(TabColours::kFill) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_frame = QRect(QPoint(0, 0), size());
    KeepTextReadable();
}

// The pages inside draw their texts on the fill, in the palette they inherit from the area.
void ucTabArea::KeepTextReadable() {
    QPalette own = palette();
    Contrast::ReadableOn(own, m_backColor);
    setPalette(own);
}

QColor ucTabArea::BorderColor() const {
    return mError::WithTrail("Get BorderColor", [this] { return m_borderColor; });
}

void ucTabArea::SetBorderColor(const QColor& value) try {
    m_borderColor = value;
    update();
} catch (...) {
    mError::PassOn("Let BorderColor");
}

QColor ucTabArea::BackColor() const {
    return mError::WithTrail("Get BackColor", [this] { return m_backColor; });
}

void ucTabArea::SetBackColor(const QColor& value) try {
    m_backColor = value;
    KeepTextReadable();
    update();
} catch (...) {
    mError::PassOn("Let BackColor");
}

QSize ucTabArea::sizeHint() const {
    return QSize(320, 200);
}

void ucTabArea::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(QPen(m_borderColor, 1));
    painter.setBrush(m_backColor);
    painter.drawRect(QRectF(m_frame).adjusted(0.5, 0.5, -0.5, -0.5));
}

void ucTabArea::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    UserControl_Resize();
}

void ucTabArea::UserControl_Resize() try {
    if (width() > 0)
        m_frame.setWidth(width());
    if (height() > 0)
        m_frame.setHeight(height());
} catch (...) {
    mError::ShowError("UserControl_Resize");
}
