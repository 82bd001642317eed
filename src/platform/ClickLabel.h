// A label that reports clicks, as the classic labels did (LabelDo, LabelStop).
#pragma once

#include <QLabel>

namespace lumen {

class ClickLabel : public QLabel {
    Q_OBJECT
public:
    explicit ClickLabel(const QString& name, const QString& text = QString(),
                        QWidget* parent = nullptr);

Q_SIGNALS:
    void clicked();
    // Button and position in twips, as the MouseUp handlers take them.
    void mouseUp(Qt::MouseButton button, float x, float y);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
};

} // namespace lumen
