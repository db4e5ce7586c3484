#include "calc/character_set.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tarnwick::calc {
namespace {

// What every order of operations leaves is held by the random user who draws in the window.
TEST(CharacterSet, ShowsItsRowsAsHexadecimalBytes) {
  CharacterSet set;
  OpenEditor(set);
  EXPECT_EQ(set.shown.leadText + set.shown.followText, "ABCD");
  SetLeadText(set, "x");
  SetFollowText(set, "y");
  EXPECT_EQ(set.shown.leadText + set.shown.followText, "xy");
  TogglePixel(set, 4);
  EXPECT_EQ(set.kept.CharacterData[0], ", $10, $00, $00, $00, $00, $00, $00, $00");
  InvertAll(set);
  EXPECT_EQ(set.shown.slotTable[0].dataDisplay, " $0F, $1F, $1F, $1F, $1F, $1F, $1F, $1F");
}

TEST(CharacterSet, RefusesPixelsAndSlotsThatDoNotExist) {
  CharacterSet set;
  EXPECT_THROW(TogglePixel(set, common::matrixPixels), std::out_of_range);
  EXPECT_THROW(SelectSlot(set, slotCount), std::out_of_range);
}

}  // namespace
}  // namespace tarnwick::calc
