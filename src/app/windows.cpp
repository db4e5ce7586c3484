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

#include <string>
#include <utility>

namespace tarnwick::app {

void addWindows(WindowSet& windows, GenVar& genVar) {
  windows.add("fMain", [&] { return new fMain(windows, genVar); });
  const auto add = [&](std::string name, const WindowSet::Load& load) {
    windows.add(std::move(name), [load] {
      ui::Window* window = load();
      window->closeBy(Qt::CTRL | Qt::Key_W);
      return window;
    });
  };
  add("fAbout", [] { return new fAbout; });
  add("fTimer", [&] { return new forms::fTimer(genVar.oscillator); });
  add("fTimerHelper", [&] { return new forms::fTimerHelper(genVar.oscillator); });
  add("fUSART", [&] { return new forms::fUSART(genVar.oscillator); });
  add("fEUSART", [&] { return new forms::fEUSART(genVar.oscillator); });
  add("fSerinSerout2", [] { return new forms::fSerinSerout2; });
  add("fPWM", [&] { return new forms::fPWM(genVar.oscillator); });
  add("fMinADTime", [&] { return new forms::fMinADTime(genVar.oscillator); });
  add("fComparator", [] { return new forms::fComparator; });
  add("fCustomCharacter", [&] { return new forms::fCustomCharacter(genVar.characters); });
}

}  // namespace tarnwick::app
