#include "app/program.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
  testing::InitGoogleTest(&argc, argv);
  if (testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS();
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  tarnwick::app::prepare();
  return RUN_ALL_TESTS();
}
