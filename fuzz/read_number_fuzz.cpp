// Reading any bytes as a number, beside strtod on the same number written plainly.

#include "common/read_number.h"
#include "fuzz/input.h"

#include <algorithm>
#include <bitset>

namespace {

// Hands out the leading characters that belong to a set.
std::string takeAll(std::string_view& text, std::string_view set) {
  const std::size_t length = std::min(text.find_first_not_of(set), text.size());
  const std::string taken(text.substr(0, length));
  text.remove_prefix(length);
  return taken;
}

std::string takeOne(std::string_view& text, std::string_view set) {
  const std::size_t length = !text.empty() && set.find(text[0]) != set.npos ? 1 : 0;
  const std::string taken(text.substr(0, length));
  text.remove_prefix(length);
  return taken;
}

// The octal digits in hexadecimal, which strtod knows.
std::string hexadecimal(const std::string& octal) {
  std::string bits;
  for (const char digit : octal)
    bits += std::bitset<3>(static_cast<unsigned>(digit - '0')).to_string();
  while (bits.size() % 4 != 0) bits.insert(0, "0");
  std::string digits;
  for (std::size_t i = 0; i < bits.size(); i += 4)
    digits += "0123456789ABCDEF"[std::bitset<4>(bits, i, 4).to_ulong()];
  return digits;
}

// The number's text as strtod takes it.
std::string plain(std::string_view text) {
  if (!takeOne(text, "&").empty()) {
    const std::string mark = takeOne(text, "HhOo");
    if (mark.empty()) return "0";
    const bool octal = mark == "O" || mark == "o";
    const std::string digits = takeAll(text, octal ? "01234567" : "0123456789ABCDEFabcdef");
    return "0x0" + (octal ? hexadecimal(digits) : digits);
  }
  constexpr std::string_view digits = "0123456789";
  std::string number = takeOne(text, "+-") + "0" + takeAll(text, digits);
  number += takeOne(text, ".") + takeAll(text, digits);
  if (takeOne(text, "EeDd").empty()) return number;
  return number + "e" + takeOne(text, "+-") + "0" + takeAll(text, digits);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  std::string solid = text;
  std::erase_if(solid, [](char c) { return c == ' ' || c == '\t' || c == '\n'; });

  const double number = tarnwick::common::readNumber(text);
  constexpr double largest = std::numeric_limits<double>::max();
  const double wanted = std::clamp(std::strtod(plain(solid).c_str(), nullptr), -largest, largest);
  tarnwick::fuzz::require(number == wanted, "a text reads as strtod reads its number");
  tarnwick::fuzz::require(number != 0 || !std::signbit(number), "there is no minus zero");
  return 0;
}
