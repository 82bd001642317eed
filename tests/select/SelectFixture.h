// The selection window over the fakes, in a temporary home holding a small
// folder tree (C:\pics, two levels deep, with a dot-folder, a link back to
// the top and a name that a list line would split), an ExtType.dat whose
// slots are JPG, PNG, TXT, "?" and C, and the links to the main window
// recorded.
#pragma once

#include "fileops/BasicText.h"
#include "platform/FileBoxes.h"
#include "platform/FormRegistry.h"
#include "select/FormRClick2.h"
#include "select/FormRClick3.h"
#include "select/FormSelectFile.h"
#include "select/RichTextBox.h"
#include "support/BasicsFixture.h"

#include <QAbstractButton>
#include <QFile>
#include <QTest>

namespace lumen::test {

inline const QString kRun = QStringLiteral("Lumentas/ForProgramRun_KDR/");

struct SelectFixture : BasicsFixture {
    FormRegistry forms;
    FormSelectFile* select = nullptr;
    QStringList calls; // what the links were asked, in order
    bool quick = false;

    SelectFixture()
    {
        home.writeFile(kRun + "ExtType.dat",
                       "'slots\r\nJPG =\r\nPNG =\r\nTXT = TEXT\r\nno equals\r\nC =\r\n");
        home.writeFile(kRun + "AccessPass.dat", "C:\\pics\r\n");
        // The edit text's look as a first start leaves it.
        state.DirecData.DispFontName = QStringLiteral("MS UI Gothic");
        state.DirecData.DispFontSize = QStringLiteral("9");
        state.DirecData.DispFontColor = QStringLiteral("&HF4C657");
        state.DirecData.DispBackColor = QStringLiteral("&H80000008");
        home.picture("pics/wide.jpg", 80, 40, QColor(200, 0, 0));
        home.picture("pics/tall.png", 40, 80, QColor(0, 0, 200));
        home.writeFile("pics/notes.txt", "x");
        home.writeFile("pics/x.png @WITH=y.wav ENDWITH", "x");
        home.writeFile("pics/a/one.jpg", "x");
        home.writeFile("pics/a/deep/three.jpg", "x");
        home.writeFile("pics/b/two.txt", "x");
        home.writeFile("pics/.hidden/h.jpg", "x");
        QFile::link(home.native("pics"), home.native("pics/a/loop"));

        forms.add(QStringLiteral("FormSelectFile"),
                  [this]() -> FormBase* { return new FormSelectFile(basics, forms); });
        forms.add(QStringLiteral("FormRClick2"),
                  [this]() -> FormBase* { return new FormRClick2(basics, *select); });
        forms.add(QStringLiteral("FormRClick3"),
                  [this]() -> FormBase* { return new FormRClick3(basics, *select); });
        select = static_cast<FormSelectFile*>(forms.form(QStringLiteral("FormSelectFile")));
        FormSelectFileLinks& links = select->links;
        links.quickWork = [this] { return quick; };
        links.showMain = [this] { calls << QStringLiteral("show main"); };
        links.clearDisplay = [this](const QString& kind) { calls << "clear [" + kind + "]"; };
        links.openFileList = [this](const QString& file) { calls << "open " + file; };
        links.commandFull = [this] { calls << QStringLiteral("full"); };
        links.listOpened = [this](bool english) {
            calls << (english ? QStringLiteral("editor: English") : QStringLiteral("editor: user"));
        };
        select->linksChanged();
        select->showForm();
        select->Text1->setText(QStringLiteral("C:\\old.jpg\r\n"));
    }

    template <class T> T* control(const QString& name) const
    {
        T* found = select->findChild<T*>(name);
        if (!found)
            qFatal("no control %s", qPrintable(name));
        return found;
    }
    void click(const QString& name) const { control<QAbstractButton>(name)->click(); }
    QStringList fileRows() const
    {
        QStringList rows;
        for (int i = 0; i < select->File1->count(); ++i)
            rows << select->File1->item(i)->text();
        return rows;
    }
    // A real click on a row of File1.
    void clickFile(const QString& name) const
    {
        FileListBox* box = select->File1;
        const QList<QListWidgetItem*> items = box->findItems(name, Qt::MatchExactly);
        if (items.isEmpty())
            qFatal("no file %s", qPrintable(name));
        box->scrollToItem(items.first());
        QTest::mouseClick(box->viewport(), Qt::LeftButton, {},
                          box->visualItemRect(items.first()).center());
    }
    // Presses CommandStop, as a user would, at the n-th run of events.
    void stopAtEvents(int n)
    {
        clock.tickStep = 20; // every look at the clock is a pause long enough to run events
        clock.onDoEvents = [this, n] {
            if (clock.doEventsCount == n)
                click(QStringLiteral("CommandStop"));
        };
    }
    QString text() const { return select->Text1->text(); }
};

// Lines joined as a text of the list: each behind "C:\pics\" and ended by CR LF.
inline QString underPics(const QStringList& names)
{
    QString text;
    for (const QString& name : names)
        text += QStringLiteral("C:\\pics\\") + name + QStringLiteral("\r\n");
    return text;
}

// The walk of C:\pics: the top folder, then a and b, then a\deep; the
// dot-folder, the link back to the top and the split name are left out.
inline const QString kTree = underPics(
    {"notes.txt", "tall.png", "wide.jpg", "a\\one.jpg", "b\\two.txt", "a\\deep\\three.jpg"});

} // namespace lumen::test
