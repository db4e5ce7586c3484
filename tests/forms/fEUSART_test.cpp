#include "forms/fEUSART.h"

#include "support/program.h"

namespace tarnwick::tests {
namespace {

class Eusart : public Program {
protected:
  std::string texts(std::initializer_list<const char*> fields) {
    std::string all;
    for (const char* field : fields) all += shown(field) + "|";
    return all;
  }
};

// No oscillator and rate give these rows; they show which fields each step writes.
TEST_F(Eusart, BlanksTheOtherGroupBesideALoneWideRow) {
  open("cEUSART", "fEUSART");
  const auto row = [](double spbrg, double calc, double err) {
    return calc::BaudRow{.Spbrg = spbrg, .Calc = calc, .Err = err};
  };
  const auto best = [&] { return texts({"trERR", "trCalcBaud", "trSPBRG", "trSPBRGH"}); };
  const auto best16 = [&] {
    return texts({"trERR16", "trCalcBaud16", "trSPBRG16(1)", "trSPBRG16(0)", "trSPBRGH16"});
  };
  const auto finalMatch = [&] {
    return texts({"tfERR", "tfCalcBaud", "TSPBRGH", "tfSPBRG", "tfBRGH", "tfBRG16"});
  };
  auto& window = dynamic_cast<forms::fEUSART&>(*current());
  window.showRows({row(1, 10, 0.3), row(2, 20, 0.2), std::nullopt, row(515, 40, 0.1)});
  EXPECT_EQ(best(), "20.0%||||");
  EXPECT_EQ(best16(), "10.0%|40|2|3|1|");
  EXPECT_EQ(finalMatch(), "10.0%|40|2|3|1|1|");

  window.showRows({row(1, 10, 0.3), row(2, 20, 0.2), std::nullopt, std::nullopt});
  EXPECT_EQ(best16(), "|40|2|3|1|");
  EXPECT_EQ(finalMatch(), "20.0%|||||0|");
}

}  // namespace
}  // namespace tarnwick::tests
