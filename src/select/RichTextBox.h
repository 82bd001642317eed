// The big text box of the selection window (Text1): a list text of any
// length, one line a row, in one font and two colours. Its text and its
// caret are given as the classic box gave them: lines ended by CR LF, and
// offsets (SelStart, SelLength) in characters with each CR LF counted as
// two, so that row arithmetic over padded lines holds. Clicks and double
// clicks are reported.
#pragma once

#include <QPlainTextEdit>

namespace lumen {

class RichTextBox : public QPlainTextEdit {
    Q_OBJECT
public:
    RichTextBox(const QString& name, QWidget* parent = nullptr);

    // The text with CR LF line ends; any line ends are taken.
    QString text() const;
    void setText(const QString& text);
    // Text = Text & more, without laying out what is there again.
    void appendText(const QString& more);

    // Offsets with CR LF as two characters. A start past the end is the end;
    // an offset between the CR and the LF of a line end is that line's end.
    int selStart() const;
    void setSelStart(int offset);
    int selLength() const;
    void setSelLength(int length);
    QString selText() const;

    // The offset of a position of the document, and back.
    int offsetOf(int position) const;
    int positionOf(int offset) const;

Q_SIGNALS:
    void clicked();       // a press of the left button has placed the caret
    void doubleClicked(); // after the box's own double-click handling

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};

} // namespace lumen
