// Lumenta with its real windows over the fakes, in a temporary home past its
// first start unless told otherwise: the whole application for tests that
// start it through Main.
#pragma once

#include "platform/FormBase.h"
#include "show/FormMain.h"
#include "start/Lumenta.h"
#include "state/DirecData.h"
#include "support/FakeMedia.h"
#include "support/Fakes.h"
#include "support/TestHome.h"

#include <QCheckBox>

#include <memory>

namespace lumen::test {

struct App {
    TestHome home;
    FakeClock clock;
    FakeDialogs ui;
    FakeLauncher launcher;
    FakeMedia media;
    Services services{clock, ui, launcher, home.fs, media};
    std::unique_ptr<Lumenta> app;
    int quits = 0;

    // `names` are relative to the temporary home, as the shell would give them.
    explicit App(const QStringList& names = QStringList(), bool pastFirstStart = true)
    {
        QStringList arguments;
        for (const QString& name : names)
            arguments << home.native(name);
        if (pastFirstStart) {
            DirecDataRecord record;
            record.CommentFontName = QStringLiteral("MS UI Gothic");
            home.makeFolder("Lumentas/ForProgramRun_KDR");
            writeDirecData(home.native("Lumentas/ForProgramRun_KDR/DirecData.ran"), record);
        }
        start(arguments);
    }
    // A program started anew over the same home, as on the next start.
    void start(const QStringList& arguments = QStringList())
    {
        app = std::make_unique<Lumenta>(services, arguments, home.native("bin/lumenta"));
        app->quit = [this] { ++quits; };
    }
    QByteArray settings(const char* name) const
    {
        return home.readFile(QStringLiteral("Lumentas/ForProgramRun_KDR/") + name);
    }
    bool shown(const QString& name) const
    {
        FormBase* form = app->forms().existing(name);
        return form && form->isVisible();
    }
    template <class T> T* form(const char* name)
    {
        return static_cast<T*>(app->forms().form(QString::fromLatin1(name)));
    }
    FormMain& main() { return app->formMain(); }
    // Starts the program and opens the list at once (no half-minute view).
    void openList(const QStringList& lines)
    {
        home.writeFile(QStringLiteral("show.lst"), lines.join(QStringLiteral("\r\n")).toUtf8());
        app->Main();
        main().resize(800, 580);
        main().CheckQuiCkWork->setChecked(true);
        main().OpenFileList(QStringLiteral("C:\\show.lst"));
    }
};

} // namespace lumen::test
