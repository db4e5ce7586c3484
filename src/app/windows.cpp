#include "app/windows.h"

#include "app/fAbout.h"
#include "app/fMain.h"
#include "forms/fCustomCharacter.h"
#include "forms/fTimer.h"

namespace tarnwick::app {

void addWindows(WindowSet& windows, GenVar& genVar) {
  windows.add("fMain", [&] { return new fMain(windows, genVar); });
  windows.add("fAbout", [] { return new fAbout; });
  windows.add("fCustomCharacter", [&] { return new forms::fCustomCharacter(genVar.characters); });
  windows.add("fTimer", [&] { return new forms::fTimer(genVar.oscillator); });
}

}  // namespace tarnwick::app
