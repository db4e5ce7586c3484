#include "calc/character_set.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tarnwick::calc {
namespace {

// What every order of operations leaves is held by the random user who draws in the window.
TEST(CharacterSet, RefusesPixelsAndSlotsThatDoNotExist) {
  CharacterSet set;
  EXPECT_THROW(TogglePixel(set, common::matrixPixels), std::out_of_range);
  EXPECT_THROW(SelectSlot(set, slotCount), std::out_of_range);
}

}  // namespace
}  // namespace tarnwick::calc
