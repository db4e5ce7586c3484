#include "support/random_user.h"

#include "support/program.h"

#include <QDesktopServices>

namespace tarnwick::tests {
namespace {

// The launcher button of a window, and how many events the window is tried with.
struct Trial {
  const char* launcherButton;
  int events;
};

class RandomEvents : public Program, public testing::WithParamInterface<Trial> {};

TEST_P(RandomEvents, LeaveNoWindowBroken) {
  RandomUser user(windows, {GetParam().launcherButton}, 20261122);
  user.act(GetParam().events);
}

INSTANTIATE_TEST_SUITE_P(EachWindow, RandomEvents,
                         testing::Values(Trial{"cTimer", 10'000}, Trial{"cTimerHelper", 10'000},
                                         Trial{"cUSART", 10'000}, Trial{"cEUSART", 10'000},
                                         Trial{"cSerinSerout2", 10'000}, Trial{"cPWM", 10'000},
                                         Trial{"cAD", 10'000}, Trial{"Command1", 10'000},
                                         Trial{"cCustomChar", 20'000}),
                         [](const auto& trial) { return trial.param.launcherButton; });

}  // namespace
}  // namespace tarnwick::tests
