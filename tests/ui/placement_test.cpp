#include "ui/placement.h"

#include <gtest/gtest.h>

#include <tuple>

namespace tarnwick::ui {
namespace {

TEST(Placement, IsBesideTheLauncherWhollyOnTheScreen) {
  constexpr QRect screen(0, 0, 1000, 800);
  constexpr QSize window(400, 300);
  using Case = std::tuple<QRect, QList<QRect>, QPoint>;
  for (const auto& [launcher, others, place] :
       {Case{{100, 50, 300, 250}, {}, {400, 50}}, Case{{600, 50, 300, 250}, {}, {200, 50}},
        Case{{350, 50, 300, 250}, {}, {350, 300}}, Case{{350, 540, 300, 250}, {}, {350, 240}},
        Case{{100, 700, 300, 250}, {}, {400, 500}}, Case{{-50, -50, 300, 250}, {}, {250, 0}},
        Case{{100, 50, 300, 250}, {{400, 50, 400, 240}}, {100, 300}},
        Case{{350, 250, 300, 300}, {}, {600, 250}}}) {
    const QRect placed = placeBeside(launcher, window, screen, others);
    EXPECT_EQ(placed.topLeft(), place) << launcher.x() << ", " << launcher.y();
    EXPECT_TRUE(screen.contains(placed));
  }
}

}  // namespace
}  // namespace tarnwick::ui
