#include "calc/baud_rate.h"

#include "common/number_text.h"
#include "common/read_number.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace tarnwick::calc {
namespace {

// A row as the windows show it: "SPBRG Calc Error", "-" where it is absent.
std::string shown(const std::optional<BaudRow>& row) {
  if (!row) return "-";
  return common::numberText(row->Spbrg) + " " + common::numberText(row->Calc) + " " +
         common::format(row->Err, "0.0#%");
}

template <typename Rows>
std::vector<std::string> allShown(const Rows& rows) {
  std::vector<std::string> texts;
  for (const auto& row : rows) texts.push_back(shown(row));
  return texts;
}

using Texts = std::vector<std::string>;

TEST(Usart, GivesTheKnownRowsAndTheBetterOne) {
  using Case = std::tuple<double, double, const char*, const char*, bool>;
  for (const auto& [osc, goal, low, high, bestBRGH] :
       {Case{20, 9600, "32 9470 -1.35%", "129 9615 0.16%", true},
        Case{20, 115200, "2 104167 -9.58%", "10 113636 -1.36%", true},
        Case{20, 1200, "255 1221 1.75%", "255 4883 306.92%", false},
        Case{4, 250000, "0 62500 -75.0%", "0 250000 0.0%", true},
        Case{14, 62500, "2 72917 16.67%", "13 62500 0.0%", true},
        Case{20, 9600000, "0 312500 -96.74%", "0 1250000 -86.98%", true},
        Case{8, 9600, "12 9615 0.16%", "51 9615 0.16%", false},
        Case{0, 9600, "0 0 -100.0%", "0 0 -100.0%", false}}) {
    const UsartRows rows = usartRows(osc, goal);
    EXPECT_EQ(allShown(rows), (Texts{low, high})) << osc << " MHz, " << goal;
    EXPECT_EQ(usartBest(rows), bestBRGH) << osc << " MHz, " << goal;
  }
}

TEST(Eusart, ChoosesByTheSizeOfTheErrors) {
  const std::optional<double> none;
  const std::optional<bool> neither;
  using Case = std::tuple<std::array<std::optional<double>, 4>, std::optional<bool>,
                          std::optional<bool>, bool>;
  for (const auto& [errors, best, best16, finalBRG16] :
       {Case{{-0.02, 0.03, 0.5, -0.4}, false, true, false},
        Case{{0.03, -0.02, -0.02, 0.02}, true, false, true},
        Case{{none, 0.1, 0.2, none}, true, false, false},
        Case{{0.1, none, none, none}, false, neither, false},
        Case{{none, none, 0.3, none}, neither, false, true},
        Case{{none, 700000, none, none}, true, neither, true}}) {
    EusartRows rows;
    for (std::size_t i = 0; i < 4; ++i)
      if (errors[i]) rows[i] = BaudRow{.Spbrg = 1, .Calc = 1, .Err = *errors[i]};
    const auto found = eusartBest(rows);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->BestBRGH, best);
    EXPECT_EQ(found->BestBRGH16, best16);
    EXPECT_EQ(found->FinalBRG16, finalBRG16);
  }
}

TEST(BaudRows, TreatWhatIsNotFiniteAsAFault) {
  const double huge = std::numeric_limits<double>::max();
  const double tiny = 1e-300;  // the register value is finite and limited, the error in percent too
  using Fault = std::pair<double, double>;
  for (const auto& [osc, goal] : {Fault{20, 0}, Fault{0, 0}, Fault{huge, 9600}, Fault{20, huge},
                                  Fault{20, huge * 10}, Fault{20, 1e-306}}) {
    EXPECT_EQ(allShown(usartRows(osc, goal)), (Texts{"-", "-"})) << goal;
    EXPECT_EQ(usartBest(usartRows(osc, goal)), std::nullopt);
    EXPECT_FALSE(eusartRows(osc, goal)) << goal;
  }
  EXPECT_TRUE(usartRows(20, tiny)[0] && eusartRows(20, tiny));
  EXPECT_FALSE(usartRows(-20, 1e-302)[0]);       // an error that has no percentage
  const auto oneRow = usartRows(20, huge / 32);  // the goal times 64 overflows, times 16 not
  EXPECT_EQ(usartBest(oneRow), true);
  EXPECT_TRUE(!oneRow[0] && oneRow[1]);
}

// What the register value of a mode has to be, by whole-number arithmetic on Hz and Bd alone.
struct Wanted {
  std::int64_t spbrg;
  bool half;  // the divisor lies exactly between spbrg + 1 and spbrg + 2
};

Wanted wanted(std::int64_t hz, std::int64_t cyclesPerCount) {
  const std::int64_t down = hz / cyclesPerCount;
  const std::int64_t twice = 2 * (hz % cyclesPerCount);
  return {.spbrg = down - (twice > cyclesPerCount ? 0 : 1), .half = twice == cyclesPerCount};
}

// Checks a row against the whole-number arithmetic; answers whether its value is at a limit.
bool checkRow(const BaudRow& row, const BaudMode& mode, std::int64_t hz, std::int64_t goal) {
  const auto largest = static_cast<std::int64_t>(mode.maxSpbrg);
  const auto spbrg = static_cast<std::int64_t>(row.Spbrg);
  const Wanted want = wanted(hz, goal * static_cast<std::int64_t>(mode.divisor));
  const std::int64_t toEven = want.spbrg + (want.half ? want.spbrg & 1 : 0);
  // Where the oscillator's decimal text is no exact half, either neighbour is the nearest.
  const bool exactHz = static_cast<double>(hz) / 1e6 * 1e6 == static_cast<double>(hz);
  if (toEven > largest || toEven < 0)
    EXPECT_EQ(spbrg, toEven < 0 ? 0 : largest);
  else
    EXPECT_TRUE(spbrg == toEven || (!exactHz && want.half && spbrg == 2 * want.spbrg + 1 - toEven))
        << spbrg;
  EXPECT_EQ(row.Calc, BaudFor(static_cast<double>(hz) / 1e6, row.Spbrg, mode.divisor));
  EXPECT_LE(std::fabs(row.Calc - static_cast<double>(hz) / ((row.Spbrg + 1) * mode.divisor)),
            0.5 + 1e-9);
  EXPECT_NEAR(row.Err * static_cast<double>(goal), row.Calc - static_cast<double>(goal), 1e-6);
  return toEven > largest || toEven < 0;
}

TEST(BaudRows, AgreeWithWholeNumberArithmeticOnEveryOscillatorAndCommonRate) {
  int limited = 0, unusable = 0;
  for (std::int64_t hz = 32'000; hz <= 64'000'000; hz += 4000) {
    const double osc = static_cast<double>(hz) / 1e6;
    for (const int goal : {300, 600, 1200, 2400, 4800, 9600, 19200, 38400, 57600, 115200}) {
      const UsartRows usart = usartRows(osc, goal);
      for (std::size_t i = 0; i < usart.size(); ++i)
        limited += checkRow(usart[i].value(), usartModes[i], hz, goal);
      const EusartRows eusart = eusartRows(osc, goal).value();
      for (std::size_t i = 0; i < eusart.size(); ++i) {
        if (const auto& row = eusart[i]) {
          limited += checkRow(*row, eusartModes[i], hz, goal);
          EXPECT_EQ(row->Err, common::readNumber(common::numberText(row->Err)));
          const SpbrgBytes bytes = spbrgBytes(row->Spbrg);
          EXPECT_TRUE(bytes.high * 256 + bytes.low == row->Spbrg && bytes.low < 256);
        } else {
          ++unusable;
          EXPECT_LE(wanted(hz, goal * static_cast<int>(eusartModes[i].divisor)).spbrg, 0);
        }
      }
      ASSERT_FALSE(HasFailure()) << osc << " MHz, " << goal << " Bd";
    }
  }
  EXPECT_TRUE(limited > 0 && unusable > 0);
}

}  // namespace
}  // namespace tarnwick::calc
