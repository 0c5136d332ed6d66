// A small screen that shows a sample picture of the game as a chosen resolution would show it: the higher
// the resolution, the smaller the picture, and 640 x 480 shows it at its natural size. In window look it
// shows the picture at 60 % of the control's size inside a drawn window frame with a title bar.
// Inside it holds the stretching image Image1, the window frame Shape1 and the title bar Shape2; their
// places are given in the control's device-independent pixels.
#pragma once

#include <QPixmap>
#include <QRect>
#include <QWidget>
#include <cstdint>

class ucResolutionPreview : public QWidget {
    Q_OBJECT

public:
    explicit ucResolutionPreview(QWidget* parent = nullptr);

    // The program's own sample picture of the game, for hosts to hand to SetPicture.
    static QPixmap SamplePicture();

    // Takes the picture and records its natural size; the picture shows unscaled until the next DrawImage.
    void SetPicture(const QPixmap& picture);
    // Stores the resolution to preview and the window look, then draws.
    void SetResolution(int16_t width, int16_t height, bool windowLook);
    // Lays the picture and the window frame out for the stored resolution. Without a picture, and without
    // window look for a resolution that is not above 0 in both directions, it leaves everything as it was.
    void DrawImage();

    QSize NaturalSize() const { return QSize(m_naturalWidth, m_naturalHeight); }
    QRect ImageRect() const { return m_image; }
    QRect FrameRect() const { return m_shape1; }
    QRect TitleBarRect() const { return m_shape2; }
    // The frame and the title bar show exactly in window look.
    bool ShapesVisible() const { return m_shapesVisible; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    // A host's layout settles the control's size only when its window is shown, after the resolution was
    // set; the picture is laid out again so that it stays centred.
    void resizeEvent(QResizeEvent* event) override;

private:
    void PaintWindowLook(QPainter& painter) const;

    QPixmap m_picture;
    int16_t m_naturalWidth = 0;
    int16_t m_naturalHeight = 0;
    bool m_windowLook = false;
    int16_t m_width = 0;
    int16_t m_height = 0;
    QRect m_image;
    QRect m_shape1;
    QRect m_shape2;
    bool m_shapesVisible = false;
};
