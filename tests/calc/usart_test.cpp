#include "calc/usart.h"

#include "calc/serial_text.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

namespace tarnwick::calc {
namespace {

std::string texts(const RateTexts& row) {
  return row.spbrgh + row.spbrg + " " + row.calcBaud + " " + row.err;
}

TEST(Usart, ShowsBothRowsAndTheBetterOne) {
  using Case = std::tuple<BaudInputs, const char*, const char*, bool>;
  for (const auto& [inputs, row0, row1, bestBRGH] :
       {Case{{20, 115200}, "2 104167 -9.58%", "10 113636 -1.36%", true},
        Case{{20, 1200}, "255 1221 1.75%", "255 4883 306.92%", false},
        Case{{4, 250000}, "0 62500 -75.0%", "0 250000 0.0%", true},
        Case{{14, 62500}, "2 72917 16.67%", "13 62500 0.0%", true},  // 2.5 to the even neighbour
        Case{{8, 9600}, "12 9615 0.16%", "51 9615 0.16%", false},
        Case{{20, 9600, true}, "0 312.5 K -96.74%", "0 1250 K -86.98%", true},
        Case{{20, 38.4, true}, "7 39.062 K 1.72%", "32 37.879 K -1.36%", true},  // 39062.5 Bd
        Case{{20, 1.2, true}, "255 1.221 K 1.75%", "255 4.883 K 306.92%", false},
        Case{{0, 9600}, "0 0 -100.0%", "0 0 -100.0%", false},
        // The goal times 64 overflows, times 16 not.
        Case{{20, 1e307}, "  ", "0 1250000 -100.0%", true}}) {
    const UsartShown shown = showUsart(inputs);
    const char* const best = bestBRGH ? row1 : row0;
    EXPECT_EQ(texts(shown.rows[0]), row0);
    EXPECT_EQ(texts(shown.rows[1]), row1);
    EXPECT_EQ(texts(shown.best), best);
    EXPECT_EQ(shown.bestBRGH, bestBRGH ? "1" : "0");
    EXPECT_EQ(shown.match.value().BestBRGH, bestBRGH);
    EXPECT_EQ(texts(rateTexts(shown.match->row, inputs.kBaud)), best);
  }
}

TEST(Usart, CopiesWithTheCommentsInOneColumn) {
  for (const int spbrg : {9, 10, 99, 100}) {
    const UsartMatch slow{.row = {.Spbrg = 1.0 * spbrg, .Err = -0.0135}};
    const std::string rate = "' 38.4 KBaud @ 3.6864MHz, -1.35%\r\n";
    std::string code = std::to_string(spbrg);
    code.resize(4, ' ');
    EXPECT_TRUE(
        UsartRegisterText({"38.4", true, "3.6864"}, slow)
            .ends_with("TXSTA = $20 ' Enable transmit, BRGH = 0\r\nSPBRG = " + code + rate));
    EXPECT_NE(
        UsartDefineText({"38.4", true, "3.6864"}, slow)
            .find("TXSTA 20h ' Enable transmit, BRGH = 0\r\nDEFINE HSER_SPBRG " + code + rate),
        std::string::npos);
  }
}

}  // namespace
}  // namespace tarnwick::calc
