// A main window over the fakes, with the windows it calls on registered,
// and helpers that make pages on disk.
#pragma once

#include "display/FormCDMusic.h"
#include "display/FormComment.h"
#include "list/CommandWords.h"
#include "platform/FormRegistry.h"
#include "show/FormMain.h"
#include "support/BasicsFixture.h"

#include <QCheckBox>
#include <QColor>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>

namespace lumen::test {

struct MainFixture : BasicsFixture {
    FormRegistry forms;
    FormMain main{basics, forms};

    MainFixture()
    {
        forms.add(QStringLiteral("FormComment"),
                  [this]() -> FormBase* { return new FormComment(basics, forms); });
        forms.add(QStringLiteral("FormCDMusic"),
                  [this]() -> FormBase* { return new FormCDMusic(basics); });
        PutCommandToArray(basics);
        main.resize(900, 640);
    }

    QString picture(const QString& relative, int w, int h, QColor colour = QColor(90, 140, 200))
    {
        return home.picture(relative, w, h, colour);
    }

    // Writes the list and opens it quickly (no half-minute view).
    void open(const QStringList& lines)
    {
        home.writeFile(QStringLiteral("show.lst"), lines.join(QStringLiteral("\r\n")).toUtf8());
        main.CheckQuiCkWork->setChecked(true);
        main.showForm();
        main.OpenFileList(QStringLiteral("C:\\show.lst"));
    }

    template <class T> T* find(const char* name) { return main.findChild<T*>(name); }
};

} // namespace lumen::test
