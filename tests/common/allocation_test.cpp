#include "common/number_text.h"
#include "common/read_number.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>
#include <string>
#include <string_view>

namespace {

int allocations = 0;

}  // namespace

// Kept out of line, where the compiler does not take malloc and free for the mismatched halves of
// an allocation.
[[gnu::noinline]] void* operator new(std::size_t size) {
  ++allocations;
  if (void* memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}

[[gnu::noinline]] void operator delete(void* memory) noexcept {
  std::free(memory);
}

[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

namespace tarnwick::common {
namespace {

template <typename Work>
int allocationsOf(const Work& work) {
  const int before = allocations;
  static_cast<void>(work());
  return allocations - before;
}

TEST(Allocations, ReadingNeedsNoneAndWritingOnlyTheText) {
  const std::string longText = "1" + std::string(1 << 20, '7') + "E-1000000";
  for (const std::string_view text : {std::string_view("3.6864"), std::string_view("&HFFFF"),
                                      std::string_view("1 2E5"), std::string_view(longText)})
    EXPECT_EQ(allocationsOf([&] { return readNumber(text); }), 0) << text.substr(0, 20);
  EXPECT_EQ(allocationsOf([] { return numberText(3.6864); }), 0);
  EXPECT_EQ(allocationsOf([] { return format(3.802, "###0.0## KHz"); }), 0);
  EXPECT_EQ(allocationsOf([] { return format(3, "###0.0#######"); }), 0);
  EXPECT_EQ(allocationsOf([] { return numberText(-1.23456789012345e-107); }), 1);
  EXPECT_EQ(allocationsOf([] { return formatWithUnit(123456789.123, "###0.0###", " MHz"); }), 1);
}

}  // namespace
}  // namespace tarnwick::common
