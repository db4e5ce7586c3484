#include "support/program.h"

#include <QSlider>

namespace tarnwick::tests {
namespace {

using TimerWindow = Program;

TEST_F(TimerWindow, FollowsADraggedSlider) {
  open("cTimer", "fTimer");
  auto* reload = control<QSlider>("scrollreload");
  const auto at = [&](int x) { return reload->mapTo(current(), QPoint(x, reload->height() / 2)); };
  QWindow* target = current()->windowHandle();
  QTest::mousePress(target, Qt::LeftButton, {}, at(reload->width() * 6 / 14));
  QTest::mouseMove(target, at(reload->width() - 2));
  EXPECT_EQ(shown("tReload"), "15");  // in the middle of the drag
  QTest::mouseMove(target, at(1));
  EXPECT_EQ(shown("tReload"), "1");
  QTest::mouseRelease(target, Qt::LeftButton, {}, at(1));
  EXPECT_EQ(shown("tResults"), "257.0 uSec");
}

}  // namespace
}  // namespace tarnwick::tests
