#include "calc/baud_rate.h"

#include "common/number_text.h"
#include "common/read_number.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
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
  const struct {
    double osc, goal;
    Texts rows;
    bool bestBRGH;
  } cases[] = {{20, 9600, {"32 9470 -1.35%", "129 9615 0.16%"}, true},
               {20, 115200, {"2 104167 -9.58%", "10 113636 -1.36%"}, true},
               {20, 1200, {"255 1221 1.75%", "255 4883 306.92%"}, false},
               {4, 250000, {"0 62500 -75.0%", "0 250000 0.0%"}, true},
               {14, 62500, {"2 72917 16.67%", "13 62500 0.0%"}, true},
               {20, 9600000, {"0 312500 -96.74%", "0 1250000 -86.98%"}, true},
               {8, 9600, {"12 9615 0.16%", "51 9615 0.16%"}, false},
               {0, 9600, {"0 0 -100.0%", "0 0 -100.0%"}, false},
               {4, 1, {"255 244 24300.0%", "255 977 97600.0%"}, false}};
  for (const auto& c : cases) {
    const UsartRows rows = usartRows(c.osc, c.goal);
    EXPECT_EQ(allShown(rows), c.rows) << c.osc << " MHz, " << c.goal;
    EXPECT_EQ(usartBest(rows), c.bestBRGH) << c.osc << " MHz, " << c.goal;
  }
}

TEST(Eusart, ChoosesByTheSizeOfTheErrors) {
  const auto row = [](double err) {
    return std::optional(BaudRow{.Spbrg = 1, .Calc = 1, .Err = err});
  };
  const std::optional<BaudRow> none;
  const struct {
    EusartRows rows;
    std::optional<bool> best, best16;
    bool finalBRG16;
  } cases[] = {{{row(-0.02), row(0.03), row(0.5), row(-0.4)}, false, true, false},
               {{row(0.03), row(-0.02), row(-0.02), row(0.02)}, true, false, true},
               {{none, row(0.1), row(0.2), none}, true, false, false},
               {{row(0.1), none, none, none}, false, {}, false},
               {{none, none, row(0.3), none}, {}, false, true},
               {{none, row(700000), none, none}, true, {}, true}};
  for (const auto& c : cases) {
    const auto best = eusartBest(c.rows);
    ASSERT_TRUE(best);
    EXPECT_EQ(best->BestBRGH, c.best);
    EXPECT_EQ(best->BestBRGH16, c.best16);
    EXPECT_EQ(best->FinalBRG16, c.finalBRG16);
  }
}

TEST(BaudRows, TreatWhatIsNotFiniteAsAFault) {
  const double huge = std::numeric_limits<double>::max();
  const double tiny = 1e-300;  // the register value is finite and limited, the error in percent too
  const struct {
    double osc, goal;
  } faults[] = {{20, 0}, {0, 0}, {huge, 9600}, {20, huge}, {20, huge * 10}, {20, 1e-306}};
  for (const auto& fault : faults) {
    EXPECT_EQ(allShown(usartRows(fault.osc, fault.goal)), (Texts{"-", "-"})) << fault.goal;
    EXPECT_EQ(usartBest(usartRows(fault.osc, fault.goal)), std::nullopt);
    EXPECT_FALSE(eusartRows(fault.osc, fault.goal)) << fault.goal;
  }
  EXPECT_TRUE(usartRows(20, tiny)[0]);
  EXPECT_TRUE(eusartRows(20, tiny));

  EXPECT_FALSE(usartRows(-20, 1e-302)[0]);  // an error that has no percentage

  const UsartRows oneRow = usartRows(20, huge / 32);  // the goal times 64 overflows, times 16 not
  EXPECT_FALSE(oneRow[0]);
  EXPECT_TRUE(oneRow[1]);
  EXPECT_EQ(usartBest(oneRow), true);
}

TEST(SpbrgBytes, SplitTheRegisterPair) {
  for (int value = 0; value < 65536; ++value) {
    const SpbrgBytes bytes = spbrgBytes(value);
    EXPECT_EQ(bytes.high * 256 + bytes.low, value);
    EXPECT_LT(bytes.low, 256);
  }
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
bool checkRow(const BaudRow& row, const BaudMode& mode, std::int64_t hz, std::int64_t goal,
              bool exactHz) {
  const auto divisor = static_cast<std::int64_t>(mode.divisor);
  const auto largest = static_cast<std::int64_t>(mode.maxSpbrg);
  const auto spbrg = static_cast<std::int64_t>(row.Spbrg);
  const Wanted want = wanted(hz, goal * divisor);
  const std::int64_t toEven = want.spbrg + (want.half ? want.spbrg & 1 : 0);
  const bool limited = toEven > largest || toEven < 0;
  if (limited) {
    EXPECT_EQ(spbrg, toEven < 0 ? 0 : largest);
  } else if (exactHz || !want.half) {
    EXPECT_EQ(spbrg, toEven);
  } else {  // the oscillator's decimal text is no exact half: either neighbour is the nearest
    EXPECT_TRUE(spbrg == want.spbrg || spbrg == want.spbrg + 1);
  }
  EXPECT_EQ(row.Calc, BaudFor(static_cast<double>(hz) / 1e6, row.Spbrg, mode.divisor));
  EXPECT_LE(std::fabs(row.Calc - static_cast<double>(hz) / ((row.Spbrg + 1) * mode.divisor)),
            0.5 + 1e-9);
  const auto goalBaud = static_cast<double>(goal);
  EXPECT_NEAR(row.Err * goalBaud, row.Calc - goalBaud, 1e-6);
  return limited;
}

TEST(BaudRows, AgreeWithWholeNumberArithmeticOnEveryOscillatorAndCommonRate) {
  constexpr std::array<std::int64_t, 10> goals{300,  600,   1200,  2400,  4800,
                                               9600, 19200, 38400, 57600, 115200};
  constexpr std::int64_t stepHz = 4000;
  std::int64_t checked = 0, limited = 0, unusable = 0;
  for (std::int64_t hz = 32'000; hz <= 64'000'000; hz += stepHz) {
    const double osc = static_cast<double>(hz) / 1e6;
    const bool exactHz = osc * 1e6 == static_cast<double>(hz);
    for (const std::int64_t goal : goals) {
      const auto goalBaud = static_cast<double>(goal);
      const UsartRows usart = usartRows(osc, goalBaud);
      for (std::size_t i = 0; i < usart.size(); ++i, ++checked)
        limited += checkRow(usart[i].value(), usartModes[i], hz, goal, exactHz);
      const auto eusart = eusartRows(osc, goalBaud);
      ASSERT_TRUE(eusart);
      for (std::size_t i = 0; i < eusart->size(); ++i, ++checked) {
        const BaudMode& mode = eusartModes[i];
        if (const auto& row = (*eusart)[i]) {
          limited += checkRow(*row, mode, hz, goal, exactHz);
          EXPECT_EQ(row->Err, common::readNumber(common::numberText(row->Err)));
        } else {
          ++unusable;
          EXPECT_LE(wanted(hz, goal * static_cast<std::int64_t>(mode.divisor)).spbrg, 0);
        }
      }
      ASSERT_FALSE(HasFailure()) << osc << " MHz, " << goal << " Bd";
    }
  }
  RecordProperty("checked", static_cast<int>(checked));
  RecordProperty("limited", static_cast<int>(limited));
  RecordProperty("unusable", static_cast<int>(unusable));
  EXPECT_EQ(checked, 6 * 10 * ((64'000'000 - 32'000) / stepHz + 1));
  EXPECT_GT(limited, 0);
  EXPECT_GT(unusable, 0);
}

}  // namespace
}  // namespace tarnwick::calc
