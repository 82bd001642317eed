// A picture box of the selection window: it holds one picture and draws it
// as large as fits, centred, scaled and never cut, on its ground.
#pragma once

#include <QImage>
#include <QWidget>

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

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage picture_;
};

} // namespace lumen
