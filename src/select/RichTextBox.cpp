#include "select/RichTextBox.h"

#include <QMouseEvent>
#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>

namespace lumen {

namespace {

QString withNewlines(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(u'\r', u'\n');
    return text;
}

} // namespace

RichTextBox::RichTextBox(const QString& name, QWidget* parent)
    : QPlainTextEdit(parent)
{
    setObjectName(name);
    // One row a line: rows padded to one width stay straight.
    setLineWrapMode(QPlainTextEdit::NoWrap);
}

QString RichTextBox::text() const
{
    return toPlainText().replace(u'\n', QStringLiteral("\r\n"));
}

void RichTextBox::setText(const QString& text)
{
    setPlainText(withNewlines(text));
}

void RichTextBox::appendText(const QString& more)
{
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    end.insertText(withNewlines(more));
}

int RichTextBox::offsetOf(int position) const
{
    return position + document()->findBlock(position).blockNumber();
}

int RichTextBox::positionOf(int offset) const
{
    const QTextDocument* doc = document();
    // The last line whose offset is at most `offset`: line k begins at its
    // position plus k, one CR for each line before it.
    int low = 0;
    int high = doc->blockCount() - 1;
    while (low < high) {
        const int middle = (low + high + 1) / 2;
        const QTextBlock block = doc->findBlockByNumber(middle);
        if (block.position() + middle <= offset)
            low = middle;
        else
            high = middle - 1;
    }
    const QTextBlock line = doc->findBlockByNumber(low);
    const int within = std::max(0, offset - (line.position() + low));
    return line.position() + std::min(within, line.length() - 1);
}

int RichTextBox::selStart() const
{
    return offsetOf(textCursor().selectionStart());
}

void RichTextBox::setSelStart(int offset)
{
    QTextCursor cursor = textCursor();
    cursor.setPosition(positionOf(offset));
    setTextCursor(cursor);
}

int RichTextBox::selLength() const
{
    const QTextCursor cursor = textCursor();
    return offsetOf(cursor.selectionEnd()) - offsetOf(cursor.selectionStart());
}

void RichTextBox::setSelLength(int length)
{
    QTextCursor cursor = textCursor();
    const int start = offsetOf(cursor.selectionStart());
    cursor.setPosition(cursor.selectionStart());
    cursor.setPosition(positionOf(start + std::max(length, 0)), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

QString RichTextBox::selText() const
{
    return textCursor().selectedText().replace(QChar::ParagraphSeparator, QStringLiteral("\r\n"));
}

void RichTextBox::mouseReleaseEvent(QMouseEvent* event)
{
    QPlainTextEdit::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton)
        Q_EMIT clicked();
}

void RichTextBox::mouseDoubleClickEvent(QMouseEvent* event)
{
    QPlainTextEdit::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton)
        Q_EMIT doubleClicked();
}

} // namespace lumen
