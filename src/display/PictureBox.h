// A picture box: holds one picture and paints it at its own size from the
// top left corner, as the classic picture box with a persistent picture did.
// PaintPicture draws a picture scaled into the box's own picture.
//
// Drawing (the methods are in picture/Canvas) goes to surface(). With
// AutoRedraw it goes into the picture itself. Without it, it goes onto what
// is seen only, over the picture, until Refresh shows the picture alone
// again; turning AutoRedraw on keeps what is seen as the picture. Image() is
// always what is seen: the picture with everything drawn on it.
#pragma once

#include "display/DrawSettings.h"

#include <QImage>
#include <QWidget>

#include <functional>

namespace lumen {

class PictureBox : public QWidget {
    Q_OBJECT
public:
    explicit PictureBox(const QString& name, QWidget* parent = nullptr);

    // The picture; one set lazily is read on first use.
    const QImage& picture() const;
    bool hasPicture() const { return !pictureSize_.isEmpty(); }
    QSize pictureSize() const { return pictureSize_; } // pixels
    void setPicture(const QImage& picture);
    // A picture whose size is known and whose pixels are read only when
    // they are wanted (painted, or asked for).
    void setLazyPicture(const QSize& size, std::function<QImage()> read);
    void clearPicture(); // Picture = Nothing, Cls

    // AutoSize: the box takes the size of each picture it is given.
    void setAutoSize(bool on) { autoSize_ = on; }

    // PaintPicture: the source scaled into the rectangle (pixels) of a
    // picture the box's size; the box keeps the result as its picture.
    void paintPicture(const QImage& source, const QRect& target);

    void setBackColor(qint32 bgr);

    DrawSettings& drawSettings() { return draw_; }
    bool autoRedraw() const { return autoRedraw_; }
    void setAutoRedraw(bool on);
    // The image drawing goes to (32-bit RGB), made on first use: the picture
    // with AutoRedraw, else the seen copy. Call surfaceChanged() after drawing.
    QImage& surface();
    void surfaceChanged() { update(); }
    // Drops what was drawn without AutoRedraw.
    void Refresh();
    QImage Image() const;

Q_SIGNALS:
    // Button and position in twips, as the MouseDown/MouseUp/MouseMove handlers take them.
    void mouseDown(Qt::MouseButton button, float x, float y);
    void mouseUp(Qt::MouseButton button, float x, float y);
    void mouseMove(Qt::MouseButtons buttons, float x, float y);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void adopt(const QSize& size);
    QImage drawable(const QImage& image) const;

    mutable QImage picture_;
    QImage seen_; // what is drawn without AutoRedraw, over the picture
    DrawSettings draw_;
    bool autoRedraw_ = false;
    mutable std::function<QImage()> read_;
    QSize pictureSize_;
    bool autoSize_ = false;
};

} // namespace lumen
