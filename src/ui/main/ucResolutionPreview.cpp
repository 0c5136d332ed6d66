#include "ui/main/ucResolutionPreview.h"

#include <QLinearGradient>
#include <QPainter>
#include <cmath>

#include "base/mString.h"
#include "error/mError.h"

namespace {

// The picture is stored at twice its natural size so that it stays sharp on high-DPI screens.
const QString kSamplePicturePath = QStringLiteral(":/pavonel/main/SamplePicture.png");
constexpr qreal kSamplePictureScale = 2.0;

// The resolution at which the picture shows at its natural size, and the share of the control that the
// picture fills in window look.
constexpr double kNaturalWidthAt = 640.0;
constexpr double kNaturalHeightAt = 480.0;
constexpr double kWindowShare = 0.6;

const QColor kScreenColor(0x1B, 0x23, 0x2E);
const QColor kScreenEdgeColor(0x5A, 0x63, 0x6E);
const QColor kWindowColor(0xD4, 0xD0, 0xC8);
const QColor kTitleColor(0x0A, 0x24, 0x6A);
const QColor kTitleFadeColor(0xA6, 0xCA, 0xF0);

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
    if (m_picture.isNull() || !(m_windowLook || (m_width > 0 && m_height > 0)))
        return;
    const QRect image = ImageRectFor(m_width, m_height, m_windowLook);
    m_shapesVisible = m_windowLook;
    m_image = image;
    m_shape2 = QRect(image.left() - 2, image.top() - 6, image.width() + 4, 5);
    m_shape1 = QRect(image.left() - 2, image.top() - 2, image.width() + 4, image.height() + 4);
    update();
} catch (...) {
    mError::ShowError("ucResolutionPreview.DrawImage");
}

QSize ucResolutionPreview::sizeHint() const {
    return QSize(160, 120);
}

void ucResolutionPreview::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), kScreenColor);
    painter.setPen(kScreenEdgeColor);
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

// The picture's size for a resolution: scaled against 640 x 480, or a share of the control in window look.
QRect ucResolutionPreview::ImageRectFor(int16_t width, int16_t height, bool windowLook) const {
    const int16_t imageWidth = windowLook
                                   ? mString::RoundToInt16(this->width() * kWindowShare)
                                   : mString::RoundToInt16(m_naturalWidth / double(width) * kNaturalWidthAt);
    const int16_t imageHeight =
        windowLook ? mString::RoundToInt16(this->height() * kWindowShare)
                   : mString::RoundToInt16(m_naturalHeight / double(height) * kNaturalHeightAt);
    const int16_t left = mString::RoundToInt16((this->width() - imageWidth) / 2.0);
    const int16_t top = mString::RoundToInt16((this->height() - imageHeight) / 2.0);
    return QRect(left, top, imageWidth, imageHeight);
}

void ucResolutionPreview::PaintWindowLook(QPainter& painter) const {
    painter.fillRect(m_shape1, kWindowColor);
    QLinearGradient title(m_shape2.topLeft(), m_shape2.topRight());
    title.setColorAt(0.0, kTitleColor);
    title.setColorAt(1.0, kTitleFadeColor);
    painter.fillRect(m_shape2, title);
}
