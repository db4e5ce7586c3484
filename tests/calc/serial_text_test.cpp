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
  for (int value = 0; value < 256; ++value) {
    for (const bool brgh : {false, true}) {
      for (const bool kBaud : {false, true}) {
        const UsartSetup setup{.goal = {.baud = "38.4", .kBaud = kBaud, .osc = "3.6864"},
                               .BestBRGH = brgh,
                               .Spbrg = static_cast<double>(value),
                               .Err = -0.0135};
        const std::string rate =
            std::string(kBaud ? "38.4 KBaud" : "38.4 Baud") + " @ 3.6864MHz, -1.35%";
        const std::string number = std::to_string(value);
        EXPECT_EQ(halvesOf(UsartRegisterText(setup)),
                  (std::vector{aligned("RCSTA = $90", 13, enable),
                               aligned("TXSTA = $" + txsta(brgh), 13, transmit(brgh)),
                               aligned("SPBRG = " + number, 13, rate)}));
        EXPECT_EQ(
            halvesOf(UsartDefineText(setup)),
            (std::vector{aligned("DEFINE HSER_RCSTA 90h", 23, enable),
                         aligned("DEFINE HSER_TXSTA " + txsta(brgh) + "h", 23, transmit(brgh)),
                         aligned("DEFINE HSER_SPBRG " + number, 23, rate),
                         aligned("DEFINE HSER_CLROERR 1", 23, clearOverflow)}));
      }
    }
  }
}

// The lines that an EUSART text must have for a generator value.
struct Layout {
  std::vector<Halves> registers, defines;
};

Layout layoutOf(const EusartSetup& setup, int value, bool wide, bool brgh) {
  const std::string low = std::to_string(wide ? value % 256 : value);
  const std::string unit = setup.goal.kBaud ? " KBaud" : " Baud";
  const std::string rest = unit + " @ " + setup.goal.osc + "MHz, " + setup.err;
  const std::string rate = setup.goal.baud + rest;
  Layout layout;
  layout.registers = {aligned("RCSTA = $90", 15, enable),
                      aligned("TXSTA = $" + txsta(brgh), 15, transmit(brgh)),
                      aligned("SPBRG = " + low, 15, rate)};
  layout.defines = {aligned("DEFINE HSER_RCSTA 90h", 23, enable),
                    aligned("DEFINE HSER_TXSTA " + txsta(brgh) + "h", 23, transmit(brgh)),
                    aligned("DEFINE HSER_CLROERR 1", 23, clearOverflow),
                    aligned("DEFINE HSER_SPBRG " + low, 23, rate)};
  if (!wide) {
    layout.defines[3] = {"DEFINE HSER_SPBRG " + low + " ", " " + rate};  // not aligned
    if (value == 10 || value == 100) layout.registers[2] = {"SPBRG = " + low + rest, ""};
    return layout;
  }
  const Halves high{"SPBRGH = " + std::to_string(value / 256), ""};
  const std::string& location = setup.location;
  layout.registers.insert(layout.registers.end(),
                          {high, {location + " = 1 ", std::string(" ") + enable16}});
  layout.defines.insert(layout.defines.end(),
                        {high, {location + " = 1         ", std::string(" ") + enable16}});
  return layout;
}

TEST(SerialText, LaysOutEveryEusartValueInBothTexts) {
  const char* const locations[] = {"BAUDCON.3", "BAUDCTL.3", "", " = x", "BAUD2CON.3 \xC3\xA9"};
  int texts = 0;
  for (int value = 0; value < 65536; ++value) {
    for (const bool wide : {false, true}) {
      if (!wide && value > 255) continue;
      for (const bool brgh : {false, true}) {
        EusartSetup setup = eusart16();
        setup.goal.kBaud = value % 3 == 0;
        setup.brg16 = wide ? "1" : "0";
        setup.brgh = brgh ? "1" : "0";
        setup.spbrg = std::to_string(wide ? value % 256 : value);
        setup.spbrgh = wide ? std::to_string(value / 256) : "";
        setup.location = locations[value % 5];
        const Layout layout = layoutOf(setup, value, wide, brgh);
        ASSERT_EQ(halvesOf(EusartRegisterText(setup)), layout.registers) << value << wide << brgh;
        ASSERT_EQ(halvesOf(EusartDefineText(setup)), layout.defines) << value << wide << brgh;
        texts += 2;
      }
    }
  }
  EXPECT_EQ(texts, 2 * 2 * (65536 + 256));
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
