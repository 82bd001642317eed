// FormMessage: the small floating label that shows a hint beside the pointer.
#pragma once

#include <QWidget>

class QLabel;

namespace lumen {

class FormMessage : public QWidget {
    Q_OBJECT
public:
    explicit FormMessage(QWidget* parent = nullptr);

    // Shows the text at a screen position in twips, sized to the label.
    void showAt(int leftTwips, int topTwips, const QString& text);
    QString text() const;

    QLabel* Label1;
};

} // namespace lumen
