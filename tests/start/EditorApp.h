// The list editor inside the whole program, on fakes: the file selection
// opened from the main window with a list text of five rows in Text1 (the
// second with a comment of three lines), and ways to click a record of the
// editor text with the mouse and to read what the editor shows.
#pragma once

#include "AppFixture.h"
#include "editor/FormEditText.h"
#include "select/FormSelectFile.h"
#include "select/RichTextBox.h"

#include <QAbstractButton>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>

namespace lumen::test {

// Five rows; the second has a comment of three lines in its array form,
// written as the editor writes it, so that a rebuild keeps the record width.
inline const QString kFiveRows =
    QStringLiteral("C:\\pics\\a.jpg @DELAY=3 ENDDELAY\r\n"
                   "C:\\pics\\b.jpg @COMMENT=<<<<<x <<<<<y ENDCOMMENT\r\n"
                   "C:\\pics\\c.jpg @WITH=C:\\snd\\s.wav ENDWITH\r\n"
                   "C:\\pics\\d.png @OPTION=STOPSOUND ENDOPTION\r\n"
                   "C:\\pics\\e.jpg\r\n");

struct EditorApp : App {
    FormSelectFile* select = nullptr;
    FormEditText* editor = nullptr;

    explicit EditorApp(const QString& list = kFiveRows)
    {
        home.picture(QStringLiteral("pics/a.jpg"), 80, 40, QColor(200, 0, 0));
        home.picture(QStringLiteral("pics/d.png"), 40, 80, QColor(0, 0, 200));
        app->Main();
        main().findChild<QPushButton*>(QStringLiteral("CommandSelectFile"))->click();
        select =
            static_cast<FormSelectFile*>(app->forms().existing(QStringLiteral("FormSelectFile")));
        if (list.isNull())
            return;
        // The list as CommandOpenf opens it.
        home.writeFile(QStringLiteral("lists/five.lst"), list.toUtf8());
        ui.fileNames.enqueue(home.native(QStringLiteral("lists/five.lst")));
        select->CommandOpenf->click();
        open();
    }
    void open()
    {
        select->CommandEditCommand1->click();
        editor = static_cast<FormEditText*>(app->forms().existing(QStringLiteral("FormEditText")));
    }
    RichTextBox* text1() const { return select->Text1; }
    int width() const { return editor->model().recordWidth(); }
    template <class T> T* control(const char* name) const
    {
        T* found = editor->findChild<T*>(QLatin1String(name));
        if (!found)
            qFatal("no control %s", name);
        return found;
    }
    void press(const char* name) const { control<QAbstractButton>(name)->click(); }
    // A real click of the mouse at a CR LF offset of the editor text.
    void clickAt(int offset) const
    {
        RichTextBox* box = text1();
        QTextCursor at(box->document());
        at.setPosition(box->positionOf(offset));
        box->setTextCursor(at); // the place is scrolled into view
        const QRect caret = box->cursorRect(at);
        QTest::mouseClick(box->viewport(), Qt::LeftButton, {}, caret.center() + QPoint(1, 0));
    }
    // A click in the middle of record `row` (from 1).
    void clickRow(int row) const { clickAt((row - 1) * width() + width() / 2 - 1); }
    // Record `row` of the editor text, its padding and line end taken off.
    QString record(int row) const
    {
        return text1()->text().mid((row - 1) * width(), width()).trimmed();
    }
    // A real click on a field, as a user turns to it.
    void clickField(QWidget* field) const
    {
        QTest::mouseClick(field, Qt::LeftButton, {}, QPoint(4, 4));
    }
};

} // namespace lumen::test
