#include "common/read_number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <system_error>

namespace tarnwick::common {
namespace {

constexpr double largest = std::numeric_limits<double>::max();

bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\n';
}
bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

// Hands out the characters of a text one by one, blanks left out; '\0' stands for the end, which
// continues a number no more than an embedded NUL does.
class Scanner {
public:
  explicit Scanner(std::string_view text) : text_(text) { skipBlanks(); }

  char peek() const { return at_ < text_.size() ? text_[at_] : '\0'; }
  char take() {
    const char c = peek();
    ++at_;
    skipBlanks();
    return c;
  }
  bool takeIf(char c) {
    if (peek() != c) return false;
    take();
    return true;
  }

private:
  void skipBlanks() {
    while (at_ < text_.size() && isBlank(text_[at_])) ++at_;
  }

  std::string_view text_;
  std::size_t at_ = 0;
};

int digitValue(char c) {
  if (isDigit(c)) return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return 16;
}

// Reads a hexadecimal or octal whole number behind its "&". The first 61 to 64 bits are kept as
// they are, any one further on only in the lowest of them: enough to round as the whole text does.
double readRadix(Scanner& scanner) {
  const char mark = scanner.take();
  const bool hexadecimal = mark == 'H' || mark == 'h';
  if (!hexadecimal && mark != 'O' && mark != 'o') return 0;
  const int bitsPerDigit = hexadecimal ? 4 : 3;
  std::uint64_t bits = 0;
  int power = 0;  // of two, by which the bits are multiplied
  while (digitValue(scanner.peek()) < 1 << bitsPerDigit) {
    const auto digit = static_cast<unsigned>(digitValue(scanner.take()));
    if (bits >> 60 == 0) {
      bits = bits << bitsPerDigit | digit;
    } else {
      if (digit != 0) bits |= 1;
      power = std::min(power + bitsPerDigit, 2000);  // far beyond the range of a double
    }
  }
  return std::min(std::ldexp(static_cast<double>(bits), power), largest);
}

// The digits of a decimal number from the first one on that is not 0, as the whole number that
// they make, times ten to the power `power`. More digits than the array holds cannot change what
// the number rounds to, except by one of them not being 0; the last digit kept stands for that.
struct Decimal {
  static constexpr std::size_t maximum = 800;  // halfway between two doubles needs at most 768
  static constexpr std::size_t exponentRoom = 24;

  std::array<char, maximum + exponentRoom> digits;
  std::size_t count = 0;
  std::int64_t power = 0;

  void add(char digit, bool fraction) {
    if (count < maximum) {
      if (count > 0 || digit != '0') digits[count++] = digit;
      if (fraction) --power;
      return;
    }
    if (digit != '0') digits[maximum - 1] = '1';
    if (!fraction) ++power;
  }
};

void readMantissa(Scanner& scanner, Decimal& decimal) {
  bool point = false;
  for (;; scanner.take()) {
    const char c = scanner.peek();
    if (isDigit(c)) {
      decimal.add(c, point);
    } else if (c == '.' && !point) {
      point = true;
    } else {
      return;
    }
  }
}

// Reads what follows a mantissa: an exponent's letter, sign and digits; what is missing counts as
// 0. Exponents beyond any text's reach are cut, so that no sum with a count of digits can overflow.
std::int64_t readExponent(Scanner& scanner) {
  constexpr std::int64_t reach = 1'000'000'000'000'000;
  const char mark = scanner.peek();
  if (mark != 'E' && mark != 'e' && mark != 'D' && mark != 'd') return 0;
  scanner.take();
  const bool negative = scanner.takeIf('-');
  if (!negative) scanner.takeIf('+');
  std::int64_t exponent = 0;
  while (isDigit(scanner.peek()))
    exponent = std::min(exponent * 10 + (scanner.take() - '0'), reach);
  return negative ? -exponent : exponent;
}

double readDecimal(Scanner& scanner) {
  Decimal decimal;
  readMantissa(scanner, decimal);
  if (decimal.count == 0) return 0;

  const std::int64_t power = decimal.power + readExponent(scanner);
  char* const first = decimal.digits.data();
  char* end = first + decimal.count;
  if (power != 0) {
    *end++ = 'e';
    end = std::to_chars(end, first + decimal.digits.size(), power).ptr;
  }
  double value = 0;
  const auto result = std::from_chars(first, end, value);
  if (result.ec != std::errc::result_out_of_range) return value;
  return power > -static_cast<std::int64_t>(decimal.count) ? largest : 0;
}

}  // namespace

double readNumber(std::string_view text) {
  Scanner scanner(text);
  if (scanner.takeIf('&')) return readRadix(scanner);
  const bool negative = scanner.takeIf('-');
  if (!negative) scanner.takeIf('+');
  const double magnitude = readDecimal(scanner);
  return negative && magnitude != 0 ? -magnitude : magnitude;
}

}  // namespace tarnwick::common
