// A picture box of the selection window: it holds one picture and draws it
// as large as fits, centred, scaled and never cut, on its ground (or where
// another placement puts it).
#pragma once

#include <QImage>
#include <QWidget>

#include <functional>

namespace lumen {

class PreviewBox : public QWidget {
    Q_OBJECT
public:
    PreviewBox(const QString& name, QWidget* parent = nullptr);

    const QImage& picture() const { return picture_; }
    void setPicture(const QImage& picture);
    void clearPicture() { setPicture(QImage()); }
    // Where the picture stands in the box, in pixels; empty without one.
    QRect pictureRect() const;
    // Where a picture of a size stands in a box of a size; previewRect
    // unless another rule is given.
    using Placement = std::function<QRect(const QSize& picture, const QSize& box)>;
    void setPlacement(Placement placement);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage picture_;
    Placement placement_;
};

} // namespace lumen
