// Every calculation on any numbers: nothing becomes a whole number that does not fit one (the
// sanitizers watch that), and the results keep what the headers promise.

#include "calc/adc.h"
#include "calc/baud_rate.h"
#include "calc/comparator.h"
#include "calc/pwm.h"
#include "calc/ser2_mode.h"
#include "calc/timer.h"
#include "calc/timer_search.h"
#include "common/read_number.h"
#include "fuzz/input.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <span>

namespace {

using namespace tarnwick;
using fuzz::anyNumber;
using fuzz::require;

constexpr double slack = 1e-9;  // relative, for what a rounding of the last digits may change

bool isWhole(double value) {
  return value == std::floor(value);
}

template <std::size_t count>
void checkBaudRows(const std::array<std::optional<calc::BaudRow>, count>& rows,
                   std::span<const calc::BaudMode> modes) {
  for (std::size_t i = 0; i < count; ++i) {
    if (!rows[i]) continue;
    const double Spbrg = rows[i]->Spbrg;
    require(isWhole(Spbrg) && Spbrg >= 0 && Spbrg <= modes[i].maxSpbrg, "SPBRG fits its register");
    require(isWhole(rows[i]->Calc), "a rate is whole");
    require(std::isfinite(rows[i]->Err * 100), "an error can be shown");
    const calc::SpbrgBytes bytes = calc::spbrgBytes(Spbrg);
    require(bytes.low >= 0 && bytes.low < 256 && bytes.high >= 0 && bytes.high < 256 &&
                bytes.high * 256 + bytes.low == Spbrg,
            "SPBRG is made of its bytes");
  }
}

// A pair's best row is the one with the smaller error, a lone row the best one.
void checkBest(const std::optional<calc::BaudRow>& row0, const std::optional<calc::BaudRow>& row1,
               std::optional<bool> best) {
  require(best.has_value() == (row0 || row1), "there is a best row where there is one");
  if (!best) return;
  const auto& chosen = *best ? row1 : row0;
  const auto& other = *best ? row0 : row1;
  require(chosen.has_value(), "the best row is one");
  require(!other || std::fabs(chosen->Err) <= std::fabs(other->Err), "no row is better");
}

void checkBaud(FuzzedDataProvider& input) {
  const double fosc = anyNumber(input);
  const double baud = anyNumber(input);
  const calc::UsartRows usart = calc::usartRows(fosc, baud);
  checkBaudRows(usart, calc::usartModes);
  checkBest(usart[0], usart[1], usartBest(usart));

  const auto rows = calc::eusartRows(fosc, baud);
  if (!rows) return;
  checkBaudRows(*rows, calc::eusartModes);
  const auto best = eusartBest(*rows);
  checkBest((*rows)[0], (*rows)[1], best ? best->BestBRGH : std::nullopt);
  checkBest((*rows)[2], (*rows)[3], best ? best->BestBRGH16 : std::nullopt);
  if (!best) return;
  const auto error = [&](std::optional<bool> brgh, std::size_t first) {
    return brgh ? std::fabs((*rows)[first + (*brgh ? 1 : 0)]->Err) : 666666.0;
  };
  const double error8 = error(best->BestBRGH, 0);
  const double error16 = error(best->BestBRGH16, 2);
  require(best->FinalBRG16 ? error16 <= error8 : error8 < error16, "the better group is final");
}

void checkSer2(FuzzedDataProvider& input) {
  const double baud = anyNumber(input);
  const calc::Ser2Options options{input.ConsumeBool(), input.ConsumeBool(), input.ConsumeBool()};
  const auto mode = Ser2Mode(baud, options);
  if (!mode) return;
  require(isWhole(*mode) && *mode >= 1 && *mode <= 65534, "a mode fits its word");
  const double bitTime = *mode - (options.open ? 32768 : 0) - (options.inverted ? 16384 : 0) -
                         (options.parity ? 8192 : 0) + 20;
  require(std::fabs(1000000 / baud - bitTime - 0.5) <= 0.5 + slack, "a mode holds the bit time");
}

void checkAdc(FuzzedDataProvider& input) {
  const double Fosc = anyNumber(input);
  const double Taq = calc::AcquisitionTime(anyNumber(input));
  require(isWhole(Taq) || !std::isfinite(Taq), "an acquisition time is whole");
  const calc::AdcClock clock = calc::ClockChoice(Fosc);
  require(!clock.divisor || !(64 / (40 / Fosc) > *clock.divisor + 0.5), "Tad is long enough");
  const int Tad = calc::AcquisitionTad(Taq, Fosc, clock.divisor);
  constexpr std::array settings{0, 4, 6, 8, 12, 16, 20, 24, 28, 32, 36, 40, 48, 64};
  require(std::ranges::count(settings, Tad) == 1,
          "an acquisition setting is one of the register's");
  if (!clock.divisor || !(Fosc > 0) || !std::isfinite(Taq)) return;
  const double periods = Taq / ((1 / Fosc) * *clock.divisor);
  require(Tad == 0 ? !(periods > 2) : Tad == 64 || periods <= Tad, "the setting covers the time");
}

void checkComparator(FuzzedDataProvider& input) {
  const double Vdd = anyNumber(input);
  require(calc::isValidVdd(Vdd) == (Vdd < 0 || (Vdd > 0 && Vdd <= 5.25)), "a supply's range");
  if (!(Vdd > 1E-300)) return;
  for (int CVR = 0; CVR <= 15; ++CVR) {
    const double low = calc::VrefLow(CVR, Vdd);
    const double high = calc::VrefHigh(CVR, Vdd);
    if (!std::isfinite(high)) return;
    require(low >= 0 && low < high && high < Vdd, "a reference lies below its supply");
    require(CVR == 0 || (low > calc::VrefLow(CVR - 1, Vdd) && high > calc::VrefHigh(CVR - 1, Vdd)),
            "the steps ascend");
  }
}

void checkTimer(FuzzedDataProvider& input) {
  const calc::TimerResult result =
      calc::timerResult({.foscMHz = anyNumber(input),
                         .is8Bit = input.ConsumeBool(),
                         .prescale = 1 << input.ConsumeIntegralInRange<int>(0, 8),
                         .preload = anyNumber(input),
                         .reloadCycles = anyNumber(input)});
  if (std::isnormal(result.FreqKHz) && std::isnormal(result.Period))
    require(std::fabs(result.FreqKHz * result.Period / 1000 - 1) < slack,
            "frequency and period belong together");
}

void checkDelay(const calc::Delay& delay, double value, calc::DelayUnit unit) {
  using enum calc::DelayUnit;
  if (unit == uSec || unit == mSec) {
    require(delay.value == value && delay.unit == unit && !delay.text, "a period stays as it is");
    return;
  }
  require(delay.unit == Hz ? delay.value < 1000 : delay.unit == KHz && delay.value >= 1,
          "a frequency is shown in its unit");
  require(delay.text ? common::readNumber(*delay.text) == delay.value
                     : delay.value == value && delay.unit == unit,
          "a moved frequency is what its text reads as");
}

void checkMatch(const calc::TimerMatch& match, int Max, const calc::TimerGoal& goal) {
  require(isWhole(match.Preload) && match.Preload >= 0 && match.Preload < Max, "a preload fits");
  require(goal.Fcy > 0 && goal.Rt >= 0 ? match.Error >= 0 : !std::isnan(match.Error),
          "an error has a size");
  const double tolerance =
      goal.unit == calc::DelayUnit::uSec || goal.unit == calc::DelayUnit::mSec ? 5 : 2;
  require(std::fabs(match.Calc - goal.wanted) <= tolerance * (1 + slack) + slack * match.Calc,
          "a match is near enough");
  const double counts = goal.Deff * goal.Fcy / match.Prescaler;
  require(Max - match.Preload >= counts - slack * Max &&
              Max - match.Preload - 1 <= counts + slack * Max,
          "a preload is the largest that makes the period long enough");
}

void checkTimerSearch(FuzzedDataProvider& input) {
  const auto unit = static_cast<calc::DelayUnit>(input.ConsumeIntegralInRange<int>(0, 3));
  const double value = fuzz::enteredNumber(input);
  const calc::Delay delay = calc::shownDelay(value, unit);
  checkDelay(delay, value, unit);

  const auto goal = calc::timerGoal(anyNumber(input), anyNumber(input), delay);
  const int Max = input.ConsumeBool() ? 256 : 65536;
  const calc::TimerMatches matches = calc::searchTimer(Max, goal);
  require(matches.best.has_value() == (matches.MatchCount > 0), "the best match is one of them");
  for (const calc::TimerMatch& match : matches.list()) {
    checkMatch(match, Max, goal);
    require(!(match.Error < matches.best->Error), "no match is better than the best one");
    require(&match == &matches.list().front() || match.Prescaler > (&match - 1)->Prescaler,
            "matches are listed by prescaler");
  }
}

void checkPwm(FuzzedDataProvider& input) {
  const double Fosc = anyNumber(input);
  const double F = anyNumber(input);
  const double D = anyNumber(input);
  const calc::PwmLimits limits = calc::PwmRange(Fosc);
  require(!(Fosc > 0) || !std::isnormal(limits.MinHz) || !(limits.MinHz > limits.MaxKHz * 1000),
          "the lowest frequency lies below the highest");
  const calc::PwmMatches matches = calc::PwmSearch(Fosc, F);
  std::uint8_t count = 0;
  for (const auto& match : matches.bySlot) {
    if (!match) continue;
    ++count;
    require(isWhole(match->PR2) && match->PR2 >= 0 && match->PR2 <= 255, "PR2 fits its register");
    require(match->Resolution >= 1 && match->Resolution <= 10, "a resolution is 1 to 10 bits");
    const calc::PwmDutyValue duty = PwmDuty(*match, D, Fosc);
    require(!(duty.Register > match->MaxDutyVal), "a duty value is within its maximum");
    require(isWhole(duty.Register) || !std::isfinite(duty.Register), "a duty value is whole");
    if (!(Fosc > 1E4 && Fosc < 1E12 && D >= 0 && D <= 100) || duty.Register >= match->MaxDutyVal)
      continue;
    require(std::fabs(duty.Duty - D) <= 50 / (4 * (match->PR2 + 1)) * (1 + slack),
            "a duty cycle is met to a step");
  }
  require(count == matches.MatchCount, "matches are counted");
  const int bits = calc::PwmResolution(anyNumber(input));
  require(bits >= 1 && bits <= 10, "a resolution is 1 to 10 bits");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::runOneOf(std::array{checkBaud, checkSer2, checkAdc, checkComparator, checkTimer,
                            checkTimerSearch, checkPwm},
                 data, size);
  return 0;
}
