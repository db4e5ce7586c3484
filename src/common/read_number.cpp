#include "common/read_number.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <limits>
#include <string>
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

// The characters of a decimal number as std::from_chars wants them. Ordinary numbers fit the
// array; only longer ones go to the heap.
class Digits {
public:
  void add(char c) {
    if (size_ < small_.size()) {
      small_[size_++] = c;
      return;
    }
    if (large_.empty()) large_.assign(small_.data(), size_);
    large_.push_back(c);
  }
  std::string_view view() const {
    return large_.empty() ? std::string_view(small_.data(), size_) : std::string_view(large_);
  }

private:
  std::array<char, 64> small_;
  std::size_t size_ = 0;
  std::string large_;
};

int hexDigitValue(char c) {
  if (isDigit(c)) return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return 16;
}

double readRadix(Scanner& scanner) {
  const char mark = scanner.take();
  const bool hexadecimal = mark == 'H' || mark == 'h';
  if (!hexadecimal && mark != 'O' && mark != 'o') return 0;
  const int radix = hexadecimal ? 16 : 8;
  double value = 0;
  while (hexDigitValue(scanner.peek()) < radix) {
    value = value * radix + hexDigitValue(scanner.take());
    if (value > largest) return largest;
  }
  return value;
}

// Reads the digits of an exponent whose letter has been taken; none give 0. Exponents beyond any
// text's reach are cut, so that their sum with a count of digits cannot overflow.
long readExponent(Scanner& scanner) {
  constexpr long reach = 1'000'000'000'000;
  const bool negative = scanner.peek() == '-';
  if (negative || scanner.peek() == '+') scanner.take();
  long exponent = 0;
  while (isDigit(scanner.peek())) {
    exponent = exponent * 10 + (scanner.take() - '0');
    if (exponent > reach) exponent = reach;
  }
  return negative ? -exponent : exponent;
}

// A decimal number's digits with the power of ten of their first significant one.
struct Decimal {
  Digits digits;
  bool anyDigit = false;
  bool anySignificant = false;
  long leadingPower = -1;  // counts up by the integer digits from the first significant one on,
                           // down by the zeros that stand between the point and that digit
};

Decimal readMantissa(Scanner& scanner) {
  Decimal decimal;
  bool point = false;
  for (;;) {
    const char c = scanner.peek();
    if (c == '.' && !point) {
      point = true;
    } else if (isDigit(c)) {
      decimal.anyDigit = true;
      const bool leadingZero = c == '0' && !decimal.anySignificant;
      if (!leadingZero) decimal.anySignificant = true;
      if (leadingZero && point) --decimal.leadingPower;
      if (!leadingZero && !point) ++decimal.leadingPower;
    } else {
      return decimal;
    }
    decimal.digits.add(scanner.take());
  }
}

void addExponent(Digits& digits, long exponent) {
  std::array<char, 24> text;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), exponent);
  digits.add('e');
  for (const char* c = text.data(); c != end.ptr; ++c) digits.add(*c);
}

double readDecimal(Scanner& scanner) {
  Decimal decimal = readMantissa(scanner);
  if (!decimal.anySignificant) return 0;

  long power = decimal.leadingPower;
  const char mark = scanner.peek();
  if (mark == 'E' || mark == 'e' || mark == 'D' || mark == 'd') {
    scanner.take();
    const long exponent = readExponent(scanner);
    power += exponent;
    addExponent(decimal.digits, exponent);
  }

  const std::string_view text = decimal.digits.view();
  double value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec == std::errc::result_out_of_range) return power > 0 ? largest : 0;
  return value;
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
