// Everything the basic procedures stand on, with fakes: a temporary home as
// C:, a jumping clock, scripted dialogs, a recording launcher and host.
#pragma once

#include "fileops/VeroProcedure_Basical.h"
#include "state/ProgramState.h"
#include "support/FakeBasicHost.h"
#include "support/FakeMedia.h"
#include "support/Fakes.h"
#include "support/TestHome.h"

namespace lumen::test {

struct BasicsFixture {
    TestHome home;
    FakeClock clock;
    FakeDialogs ui;
    FakeLauncher launcher;
    FakeBasicHost host;
    ProgramState state;
    FakeMedia media;
    Services services{clock, ui, launcher, home.fs, media};
    VeroProcedure_Basical basics{state, services, host};

    BasicsFixture()
    {
        state.DataDir = QStringLiteral("C:\\Lumentas");
        state.ProgramRunDir = QStringLiteral("C:\\Lumentas\\ForProgramRun_KDR");
        state.ProgramFolder = QStringLiteral("C:\\bin");
        home.makeFolder(QStringLiteral("Lumentas/ForProgramRun_KDR"));
    }
};

} // namespace lumen::test
