#pragma once

#include "core/program.h"
#include "support/outsides.h"
#include "support/scripteddialogs.h"
#include "support/testworld.h"

namespace tessaro::test {

/// A program whose folder is `C:\Tessaro` in a world of its own, with scripted outsides.
class TestProgram {
  public:
    TestWorld world;
    ScriptedDialogs dialogs;
    RecordingSounds sounds;
    RecordingProcesses processes;
    ManualEvents events;

  private:
    /// The folder has to be there before the program is made.
    ProgramFile makeFolder() const {
        world.makeFolder("C:\\Tessaro");
        return {"C:\\Tessaro", "tessaro"};
    }

  public:
    Program program{world.host, world.drives, {dialogs, sounds, processes, events}, makeFolder()};
};

}  // namespace tessaro::test
