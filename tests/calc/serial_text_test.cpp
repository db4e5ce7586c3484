#include "calc/serial_text.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick::calc {
namespace {

const SerialGoal at20{.baud = "9600", .kBaud = false, .osc = "20"};

EusartSetup eusart16() {
  return {.goal = at20,
          .brg16 = "1",
          .brgh = "1",
          .spbrg = "8",
          .spbrgh = "2",
          .err = "-0.03%",
          .location = "BAUDCON.3"};
}

// The lines of a text; every one, the last too, must end with CR LF and hold no other CR or LF.
std::vector<std::string> linesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = text.find("\r\n");
    if (end == std::string_view::npos || text.find_first_of("\r\n") != end)
      return {"bad line end in: " + std::string(text)};
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(end + 2);
  }
  return lines;
}

// What stands in a line before its comment mark, spaces in front of the mark included, and behind
// it.
using Halves = std::pair<std::string, std::string>;

std::vector<Halves> halvesOf(std::string_view text) {
  std::vector<Halves> halves;
  for (const std::string& line : linesOf(text)) {
    const std::size_t mark = line.find('\'');
    halves.push_back({line.substr(0, mark), mark == line.npos ? "" : line.substr(mark + 1)});
  }
  return halves;
}

// The layout rule: the code, filled up with spaces so that the mark stands in the column.
Halves aligned(std::string code, std::size_t column, std::string comment) {
  code.resize(column - 1, ' ');
  return {std::move(code), " " + std::move(comment)};
}

constexpr const char* enable = "Enable serial port & continuous receive";
constexpr const char* enable16 = "Enable 16 bit baudrate generator";
constexpr const char* clearOverflow = "Clear overflow automatically";

std::string transmit(bool brgh) {
  return std::string("Enable transmit, BRGH = ") + (brgh ? "1" : "0");
}
std::string txsta(bool brgh) {
  return brgh ? "24" : "20";
}

TEST(SerialText, AlignsEveryUsartValueInBothTexts) {
  for (int turn = 0; turn < 4 * 256; ++turn) {
    const bool brgh = turn % 2 == 1;
    const bool kBaud = turn / 2 % 2 == 1;
    const UsartSetup setup{.goal = {.baud = "38.4", .kBaud = kBaud, .osc = "3.6864"},
                           .BestBRGH = brgh,
                           .Spbrg = static_cast<double>(turn / 4),
                           .Err = -0.0135};
    const std::string number = std::to_string(turn / 4);
    const std::string rate = std::string(kBaud ? "38.4 K" : "38.4 ") + "Baud @ 3.6864MHz, -1.35%";
    EXPECT_EQ(halvesOf(UsartRegisterText(setup)),
              (std::vector{aligned("RCSTA = $90", 13, enable),
                           aligned("TXSTA = $" + txsta(brgh), 13, transmit(brgh)),
                           aligned("SPBRG = " + number, 13, rate)}));
    EXPECT_EQ(halvesOf(UsartDefineText(setup)),
              (std::vector{aligned("DEFINE HSER_RCSTA 90h", 23, enable),
                           aligned("DEFINE HSER_TXSTA " + txsta(brgh) + "h", 23, transmit(brgh)),
                           aligned("DEFINE HSER_SPBRG " + number, 23, rate),
                           aligned("DEFINE HSER_CLROERR 1", 23, clearOverflow)}));
  }
}

// A generator value of 8 bits is not aligned in the DEFINE text, and a 10 or 100 takes the mark of
// its register line away; a value of 16 bits brings two lines more.
TEST(SerialText, LaysOutEveryEusartValueInBothTexts) {
  const char* const locations[] = {"BAUDCON.3", "BAUDCTL.3", "", " = x", "BAUD2CON.3 \xC3\xA9"};
  for (int turn = 0; turn < 4 * 256; ++turn) {
    const int value = turn / 4;
    const bool wide = turn % 2 == 1;
    const bool brgh = turn / 2 % 2 == 1;
    const std::string location = locations[value % 5];
    const std::string low = std::to_string(value);
    const std::string high = std::to_string(255 - value);
    const EusartSetup setup{.goal = {.baud = "9600", .kBaud = value % 3 == 0, .osc = "20"},
                            .brg16 = wide ? "1" : "0",
                            .brgh = brgh ? "1" : "0",
                            .spbrg = low,
                            .spbrgh = wide ? high : "",
                            .err = "-0.03%",
                            .location = location};
    const std::string rest =
        (value % 3 == 0 ? " KBaud" : " Baud") + std::string(" @ 20MHz, -0.03%");
    std::vector registers{aligned("RCSTA = $90", 15, enable),
                          aligned("TXSTA = $" + txsta(brgh), 15, transmit(brgh)),
                          aligned("SPBRG = " + low, 15, "9600" + rest)};
    std::vector defines{aligned("DEFINE HSER_RCSTA 90h", 23, enable),
                        aligned("DEFINE HSER_TXSTA " + txsta(brgh) + "h", 23, transmit(brgh)),
                        aligned("DEFINE HSER_CLROERR 1", 23, clearOverflow),
                        aligned("DEFINE HSER_SPBRG " + low, 23, "9600" + rest)};
    if (wide) {
      for (auto* lines : {&registers, &defines}) lines->push_back({"SPBRGH = " + high, ""});
      registers.push_back({location + " = 1 ", std::string(" ") + enable16});
      defines.push_back({location + " = 1         ", std::string(" ") + enable16});
    } else {
      defines[3].first = "DEFINE HSER_SPBRG " + low + " ";
      if (value == 10 || value == 100) registers[2] = {"SPBRG = " + low + rest, ""};
    }
    ASSERT_EQ(halvesOf(EusartRegisterText(setup)), registers) << value << wide << brgh;
    ASSERT_EQ(halvesOf(EusartDefineText(setup)), defines) << value << wide << brgh;
  }
}

TEST(SerialText, TakesOddFieldTexts) {
  EusartSetup setup = eusart16();
  setup.brg16 = "";  // anything but "0" is 16-bit
  setup.brgh = "";   // anything but "1" is low speed
  setup.spbrg = "";
  setup.spbrgh = "007";
  setup.goal.baud = "";
  EXPECT_EQ(linesOf(EusartRegisterText(setup))[1], "TXSTA = $20   ' Enable transmit, BRGH = 0");
  EXPECT_EQ(linesOf(EusartRegisterText(setup))[2], "SPBRG = 0     '  Baud @ 20MHz, -0.03%");
  EXPECT_EQ(linesOf(EusartRegisterText(setup))[3], "SPBRGH = 7");

  setup.brg16 = "0";
  setup.spbrg = "010";
  EXPECT_EQ(linesOf(EusartRegisterText(setup))[2], "SPBRG = 10 Baud @ 20MHz, -0.03%");
  EXPECT_EQ(linesOf(EusartDefineText(setup))[3], "DEFINE HSER_SPBRG 010 '  Baud @ 20MHz, -0.03%");
}

}  // namespace
}  // namespace tarnwick::calc
