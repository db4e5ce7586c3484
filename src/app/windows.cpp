#include "app/windows.h"

#include "app/fAbout.h"
#include "app/fMain.h"
#include "forms/fComparator.h"
#include "forms/fMinADTime.h"
#include "forms/fPWM.h"
#include "forms/fTimer.h"
#include "forms/fTimerHelper.h"

namespace tarnwick::app {

void addWindows(WindowSet& windows, GenVar& genVar) {
  windows.add("fMain", [&] { return new fMain(windows, genVar); });
  windows.add("fAbout", [] { return new fAbout; });
  windows.add("fComparator", [] { return new forms::fComparator; });
  windows.add("fMinADTime", [&] { return new forms::fMinADTime(genVar.oscillator); });
  windows.add("fPWM", [&] { return new forms::fPWM(genVar.oscillator); });
  windows.add("fTimer", [&] { return new forms::fTimer(genVar.oscillator); });
  windows.add("fTimerHelper", [&] { return new forms::fTimerHelper(genVar.oscillator); });
}

}  // namespace tarnwick::app
