#include "calc/eusart.h"

#include "calc/serial_text.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <optional>
#include <string>
#include <tuple>
#include <utility>

namespace tarnwick::calc {
namespace {

std::string texts(const RateTexts& row) {
  return (row.spbrgh.empty() ? "" : row.spbrgh + ":") + row.spbrg + " " + row.calcBaud + " " +
         row.err;
}
std::string texts(const EusartMatch& match) {
  return texts(match.texts) + " " + match.brghText;
}
std::string rows(const EusartShown& shown) {
  std::string all = texts(shown.rows[0]);
  for (std::size_t i = 1; i < 4; ++i) all += "|" + texts(shown.rows[i]);
  return all;
}
std::string matches(const EusartShown& shown) {
  return texts(shown.best) + "|" + texts(shown.best16) + "|" + texts(shown.finalMatch) + " " +
         shown.brg16Text;
}

TEST(Eusart, ShowsItsRowsAndMatches) {
  using Case = std::tuple<BaudInputs, const char*, const char*>;
  for (const auto& [inputs, rowsWanted, matchesWanted] :
       {Case{{8, 9600},
             "12 9615 0.16%|51 9615 0.16%|0:51 9615 0.16%|0:207 9615 0.16%",
             "12 9615 0.16% 0|0:51 9615 0.16% 0|0:51 9615 0.16% 0 1"},
        Case{{20, 300},
             "255 1221 307.0%|255 4883 1527.67%|16:70 300 0.0%|65:26 300 0.0%",
             "255 1221 307.0% 0|16:70 300 0.0% 0|16:70 300 0.0% 0 1"},
        Case{{64, 1},
             "255 3906 390500.0%|255 15625 1562400.0%|255:255 61 6000.0%|255:255 244 24300.0%",
             "255 3906 390500.0% 0|255:255 61 6000.0% 0|255:255 61 6000.0% 0 1"},
        Case{{20, 9.6, true},
             "32 9.47 K -1.35%|129 9.615 K 0.16%|0:129 9.615 K 0.16%|2:8 9.597 K -0.03%",
             "129 9.615 K 0.16% 1|2:8 9.597 K -0.03% 1|2:8 9.597 K -0.03% 1 1"},
        // So low a rate that its rounding to whole Bd decides.
        Case{{0.034, 47.61},
             "10 48 0.82%|44 47 -1.28%|0:44 47 -1.28%|0:178 47 -1.28%",
             "10 48 0.82% 0|0:44 47 -1.28% 0|10 48 0.82% 0 0"},
        Case{{20, 10000000}, "  |  |  |  ", "   |   |    "},
        Case{{20, 0}, "  |  |  |  ", "   |   |    "}}) {
    const EusartShown shown = next({}, {inputs, "BAUDCON.3"});
    EXPECT_EQ(rows(shown), rowsWanted);
    EXPECT_EQ(matches(shown), matchesWanted);
  }
}

TEST(Eusart, ReckonsTheErrorsOnlyToFifteenDigits) {
  const double huge = std::numeric_limits<double>::max();
  EXPECT_EQ(eusartRows(20, 115200).value()[1]->Err, -0.0135763888888889);
  for (const auto& [osc, goal] :
       {std::pair(0.0, 0.0), std::pair(huge, 9600.0), std::pair(20.0, huge),
        std::pair(20.0, huge * 10), std::pair(20.0, 1e-306)})
    EXPECT_FALSE(eusartRows(osc, goal)) << goal;
}

// Rows that no input need give: they show which texts a calculation leaves of the one before.
TEST(Eusart, KeepsAndBlanksTextsOfTheCalculationBefore) {
  const std::optional<BaudRow> none;
  const auto row0 = [](double err) { return BaudRow{1, 10, err}; };
  const auto row1 = [](double err) { return BaudRow{2, 20, err}; };
  const auto row2 = [](double err) { return BaudRow{259, 30, err}; };
  const auto row3 = [](double err) { return BaudRow{516, 40, err}; };
  constexpr bool located = true;
  EusartShown shown;
  using Case = std::tuple<std::optional<EusartRows>, bool, const char*, const char*>;
  for (const auto& [rows, hasLocation, texts, can] :
       {Case{EusartRows{row0(-0.02), row1(0.03), row2(0.5), row3(-0.4)}, !located,
             "1 10 -2.0% 0|2:4 40 -40.0% 1|1 10 -2.0% 0 0", "locate"},
        Case{EusartRows{row0(0.03), row1(-0.02), row2(-0.02), row3(0.02)}, located,
             "2 20 -2.0% 1|1:3 30 -2.0% 0|1:3 30 -2.0% 0 1", "copy locate"},
        Case{EusartRows{row0(0.3), row1(0.2), none, row3(0.1)}, !located,
             "  20.0% |2:4 40 10.0% 1|2:4 40 10.0% 1 1", "copy locate"},
        Case{EusartRows{row0(0.3), row1(0.2), none, none}, located, "  20.0% |2:4 40  1|  20.0%  0",
             "copy locate"},
        Case{EusartRows{none, row1(0.1), row2(0.2), none}, located,
             "  10.0% |1:3 30 20.0% 0|  10.0%  0", "copy locate"},
        Case{EusartRows{row0(0.1), none, none, none}, located, "  10.0% |1:3 30  0|  10.0%  0",
             "copy locate"},
        Case{EusartRows{none, row1(700000), none, none}, located,
             "  70000000.0% |1:3 30  0|1:3 30 66666600.0% 0 1", "copy locate"},
        Case{EusartRows{none, none, none, none}, located, "  70000000.0% |1:3 30  0|1:    ", ""},
        Case{std::nullopt, located, "  70000000.0% |1:3 30  0|1:    ", ""},
        Case{EusartRows{none, none, row2(0.3), none}, !located,
             "   |1:3 30 30.0% 0|1:3 30 30.0% 0 1", "locate"},
        Case{std::nullopt, located, "   |1:3 30 30.0% 0|1:3 30 30.0% 0 1", "locate"}}) {
    shown = next(shown, rows, false, hasLocation);
    EXPECT_EQ(matches(shown), texts);
    EXPECT_EQ(std::string(shown.canCopy ? "copy " : "") + (shown.canLocate ? "locate" : ""), can);
  }
  EXPECT_EQ(::tarnwick::calc::rows(shown), "  |  |  |  ");
  EXPECT_FALSE(locationChosen(shown, "").canCopy);
  EXPECT_TRUE(locationChosen(shown, "BAUDCTL.3").canCopy);
}

// A value of 8 bits is not aligned in the DEFINE text, and a 10 or 100 takes the comment of its
// register line away; a value of 16 bits brings two lines more.
TEST(Eusart, CopiesTheFinalMatch) {
  const SerialGoal goal{"9600", false, "20"};
  const std::string enable = "' Enable serial port & continuous receive\r\n";
  const std::string clear = "DEFINE HSER_CLROERR 1 ' Clear overflow automatically\r\n";
  const std::string end = " Baud @ 20MHz, 0.16%\r\n";
  using Case = std::tuple<int, std::size_t, const char*, const char*>;
  for (const auto& [spbrg, best, registerLine, defineLine] :
       {Case{9, 0, "9     ' 9600", "9 ' 9600"}, Case{10, 0, "10", "10 ' 9600"},
        Case{11, 0, "11    ' 9600", "11 ' 9600"}, Case{99, 1, "99    ' 9600", "99 ' 9600"},
        Case{100, 0, "100", "100 ' 9600"}, Case{129, 1, "129   ' 9600", "129 ' 9600"},
        Case{9, 2, "9     ' 9600", "9   ' 9600"}, Case{10, 2, "10    ' 9600", "10  ' 9600"},
        Case{3 * 256 + 99, 3, "99    ' 9600", "99  ' 9600"},
        Case{100, 3, "100   ' 9600", "100 ' 9600"}}) {
    EusartRows rows;
    rows.fill(BaudRow{1.0 * spbrg, 9600, 0.5});
    rows.at(best)->Err = 0.0016;
    const EusartShown shown = next({}, rows, false, true);
    const std::string transmit =
        best % 2 == 1 ? "Enable transmit, BRGH = 1\r\n" : "Enable transmit, BRGH = 0\r\n";
    const std::string digit = best % 2 == 1 ? "4" : "0";
    const std::string high = "SPBRGH = " + std::to_string(spbrg / 256) + "\r\n(any) = 1 ";
    const std::string enable16 = "' Enable 16 bit baudrate generator\r\n";
    EXPECT_EQ(EusartRegisterText(goal, shown, "(any)"),
              "RCSTA = $90   " + enable + "TXSTA = $2" + digit + "   ' " + transmit +
                  "SPBRG = " + registerLine + end + (best < 2 ? "" : high + enable16));
    EXPECT_EQ(EusartDefineText(goal, shown, "(any)"),
              "DEFINE HSER_RCSTA 90h " + enable + "DEFINE HSER_TXSTA 2" + digit + "h ' " +
                  transmit + clear + "DEFINE HSER_SPBRG " + defineLine + end +
                  (best < 2 ? "" : high + "        " + enable16));
  }
}

}  // namespace
}  // namespace tarnwick::calc
