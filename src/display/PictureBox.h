// A picture box: holds one picture and paints it at its own size from the
// top left corner, as the classic picture box with a persistent picture did.
// PaintPicture draws a picture scaled into the box's own picture.
#pragma once

#include <QImage>
#include <QWidget>

namespace lumen {

class PictureBox : public QWidget {
    Q_OBJECT
public:
    explicit PictureBox(const QString& name, QWidget* parent = nullptr);

    const QImage& picture() const { return picture_; }
    bool hasPicture() const { return !picture_.isNull(); }
    void setPicture(const QImage& picture);
    void clearPicture(); // Picture = Nothing, Cls

    // PaintPicture: the source scaled into the rectangle (pixels) of a
    // picture the box's size; the box keeps the result as its picture.
    void paintPicture(const QImage& source, const QRect& target);

    void setBackColor(qint32 bgr);

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
    QImage picture_;
};

} // namespace lumen
