#include "support/random_user.h"

#include "support/program.h"

#include <QPushButton>

namespace tarnwick::tests {
namespace {

class RandomEvents : public Program {};

// tools/stress asks for more events, and for other ones.
TEST_F(RandomEvents, LeaveNoWindowBroken) {
  std::vector<std::string> buttons;
  for (const auto* button : window("fMain")->findChildren<QPushButton*>())
    buttons.push_back(ui::fromQt(button->objectName()));
  EXPECT_EQ(buttons.size(), 9U);
  RandomUser user(windows, buttons,
                  static_cast<unsigned>(20261123 + qEnvironmentVariableIntValue("TARNWICK_SEED")));
  const int events = qEnvironmentVariableIntValue("TARNWICK_EVENTS");
  user.act(events > 0 ? events : 20'000);
}

}  // namespace
}  // namespace tarnwick::tests
