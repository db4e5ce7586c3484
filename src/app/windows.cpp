#include "app/windows.h"

#include "app/fAbout.h"
#include "app/fMain.h"
#include "forms/fComparator.h"
#include "forms/fCustomCharacter.h"
#include "forms/fEUSART.h"
#include "forms/fMinADTime.h"
#include "forms/fPWM.h"
#include "forms/fSerinSerout2.h"
#include "forms/fTimer.h"
#include "forms/fTimerHelper.h"
#include "forms/fUSART.h"

namespace tarnwick::app {

void addWindows(WindowSet& windows, GenVar& genVar) {
  windows.add("fMain", [&] { return new fMain(windows, genVar); });
  windows.add("fAbout", [] { return new fAbout; });
  windows.add("fTimer", [&] { return new forms::fTimer(genVar.oscillator); });
  windows.add("fTimerHelper", [&] { return new forms::fTimerHelper(genVar.oscillator); });
  windows.add("fUSART", [&] { return new forms::fUSART(genVar.oscillator); });
  windows.add("fEUSART", [&] { return new forms::fEUSART(genVar.oscillator); });
  windows.add("fSerinSerout2", [] { return new forms::fSerinSerout2; });
  windows.add("fPWM", [&] { return new forms::fPWM(genVar.oscillator); });
  windows.add("fMinADTime", [&] { return new forms::fMinADTime(genVar.oscillator); });
  windows.add("fComparator", [] { return new forms::fComparator; });
  windows.add("fCustomCharacter", [&] { return new forms::fCustomCharacter(genVar.characters); });
}

}  // namespace tarnwick::app
