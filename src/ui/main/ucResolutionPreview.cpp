#include "ui/main/ucResolutionPreview.h"

#include <QLinearGradient>
#include <QPainter>

#include "base/mString.h"
#include "error/mError.h"
#include "mainwindow/PreviewLayout.h"

namespace {

// The picture is stored at twice its natural size so that it stays sharp on high-DPI screens.
const QString kSamplePicturePath = QStringLiteral(":/pavonel/main/SamplePicture.png");
constexpr qreal kSamplePictureScale = 2.0;

QRect ToQt(const PreviewLayout::Box& box) {
    return QRect(box.left, box.top, box.width, box.height);
}

QColor Colour(uint32_t rgb) {
    return QColor::fromRgb(static_cast<QRgb>(rgb));
}

}  // namespace

// A resource compiled into a static library is registered only on request, and the request must be made
// outside any namespace.
static void InitSamplePictureResource() {
    Q_INIT_RESOURCE(ucResolutionPreview);
}

ucResolutionPreview::ucResolutionPreview(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QPixmap ucResolutionPreview::SamplePicture() {
    InitSamplePictureResource();
    // Named, the format spares the probing of every image plugin at start.
    QPixmap picture(kSamplePicturePath, "PNG");
    picture.setDevicePixelRatio(kSamplePictureScale);
    return picture;
}

void ucResolutionPreview::SetPicture(const QPixmap& picture) try {
    const QSizeF natural = picture.deviceIndependentSize();
    const int16_t naturalWidth = mString::RoundToInt16(natural.width());
    const int16_t naturalHeight = mString::RoundToInt16(natural.height());
    m_picture = picture;
    m_naturalWidth = naturalWidth;
    m_naturalHeight = naturalHeight;
    m_image.setSize(QSize(naturalWidth, naturalHeight));
    update();
} catch (...) {
    mError::ShowError("ucResolutionPreview.Set Picture");
}

void ucResolutionPreview::SetResolution(int16_t width, int16_t height, bool windowLook) try {
    m_width = width;
    m_height = height;
    m_windowLook = windowLook;
    DrawImage();
} catch (...) {
    mError::ShowError("ucResolutionPreview.SetResolution");
}

void ucResolutionPreview::DrawImage() try {
    if (m_picture.isNull())
        return;
    const auto layout = PreviewLayout::For({width(), height()}, {m_naturalWidth, m_naturalHeight}, m_width,
                                           m_height, m_windowLook);
    if (!layout)
        return;
    m_shapesVisible = m_windowLook;
    m_image = ToQt(layout->image);
    m_shape2 = ToQt(layout->titleBar);
    m_shape1 = ToQt(layout->frame);
    update();
} catch (...) {
    mError::ShowError("ucResolutionPreview.DrawImage");
}

QSize ucResolutionPreview::sizeHint() const {
    return QSize(160, 120);
}

void ucResolutionPreview::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Colour(PreviewLayout::kScreen));
    painter.setPen(Colour(PreviewLayout::kScreenEdge));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    if (m_picture.isNull())
        return;
    if (m_shapesVisible)
        PaintWindowLook(painter);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(m_image, m_picture);
}

void ucResolutionPreview::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    DrawImage();
}

void ucResolutionPreview::PaintWindowLook(QPainter& painter) const {
    painter.fillRect(m_shape1, Colour(PreviewLayout::kWindow));
    QLinearGradient title(m_shape2.topLeft(), m_shape2.topRight());
    title.setColorAt(0.0, Colour(PreviewLayout::kTitle));
    title.setColorAt(1.0, Colour(PreviewLayout::kTitleFade));
    painter.fillRect(m_shape2, title);
}
