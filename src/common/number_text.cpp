#include "common/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>

namespace tarnwick::common {
namespace {

constexpr int significantDigits = 15;

// A finite value as at most 15 significant decimal digits, no "0" at their end: 0.d0d1d2... times
// ten to the power `point`, so `point` is the number of digits before the decimal point.
struct DecimalForm {
  bool negative = false;
  std::array<char, significantDigits> digits{};
  int count = 0;  // none stand for zero
  int point = 0;

  bool zero() const { return count == 0; }

  // The digit `place` positions left of the decimal point (0 is the units digit, -1 the tenths).
  char digitAt(int place) const {
    const int index = point - 1 - place;
    return index >= 0 && index < count ? digits.data()[index] : '0';
  }

  // Keeps the first `length` digits, less the "0" at their end.
  void cutTo(int length) {
    count = length;
    while (count > 0 && digits.data()[count - 1] == '0') --count;
  }
};

DecimalForm decimalForm(double value) {
  std::array<char, 32> text;  // d.dddddddddddddde[+-]ddd
  const auto end = std::to_chars(text.data(), text.data() + text.size(), std::fabs(value),
                                 std::chars_format::scientific, significantDigits - 1);
  DecimalForm form;
  form.negative = std::signbit(value);
  form.digits[0] = text[0];
  std::copy_n(text.data() + 2, significantDigits - 1, form.digits.data() + 1);
  form.cutTo(significantDigits);
  const char* exponent = text.data() + significantDigits + 2;
  if (*exponent == '+') ++exponent;
  std::from_chars(exponent, end.ptr, form.point);
  ++form.point;
  return form;
}

// Adds one to the last of the digits.
void increment(DecimalForm& form) {
  char* const digits = form.digits.data();
  while (form.count > 0 && digits[form.count - 1] == '9') --form.count;
  if (form.count > 0) {
    ++digits[form.count - 1];
    return;
  }
  digits[0] = '1';
  form.count = 1;
  ++form.point;
}

// Rounds to `places` digits after the decimal point, halves away from zero.
void roundToPlaces(DecimalForm& form, int places) {
  const int keep = form.point + places;
  if (keep >= form.count) return;
  const bool up = keep >= 0 && form.digits.data()[keep] >= '5';
  if (!up) {
    form.cutTo(std::max(keep, 0));
    return;
  }
  form.count = keep;
  increment(form);
}

// The half of a pattern before its point, or the half from the point on.
struct PatternHalf {
  std::string_view text;
  int positions = 0;  // digit positions, "0" and "#"
  int zeros = 0;      // those among them that are always shown
};

bool isPosition(char c) {
  return c == '0' || c == '#';
}

PatternHalf halfOf(std::string_view text) {
  PatternHalf half{.text = text};
  for (const char c : text) {
    if (isPosition(c)) ++half.positions;
    if (c == '0') ++half.zeros;
  }
  return half;
}

// Appends the half before the point, each position taking its digit of the `digits` to be written,
// the first position also those to its left.
void writeInteger(std::string& text, const DecimalForm& form, const PatternHalf& half, int digits) {
  int place = digits - 1;
  const auto writeDownTo = [&](int last) {
    for (; place >= last; --place) text.push_back(form.digitAt(place));
  };
  int positionsLeft = half.positions;
  for (const char c : half.text) {
    if (isPosition(c))
      writeDownTo(--positionsLeft);
    else
      text.push_back(c);
  }
  writeDownTo(0);
}

// Appends the half from the point on, whose first `digits` positions take a digit each.
void writeFraction(std::string& text, const DecimalForm& form, const PatternHalf& half,
                   int digits) {
  int place = 0;
  for (const char c : half.text) {
    if (!isPosition(c))
      text.push_back(c);
    else if (place-- > -digits)
      text.push_back(form.digitAt(place));
  }
}

}  // namespace

std::string format(double value, std::string_view pattern) {
  return formatWithUnit(value, pattern, {});
}

std::string formatWithUnit(double value, std::string_view pattern, std::string_view unit) {
  if (pattern.find('%') != std::string_view::npos) value *= 100;
  if (!std::isfinite(value)) return {};

  const std::size_t point = std::min(pattern.find('.'), pattern.size());
  const PatternHalf integer = halfOf(pattern.substr(0, point));
  const PatternHalf fraction = halfOf(pattern.substr(point));
  DecimalForm form = decimalForm(value);
  roundToPlaces(form, fraction.positions);
  const int integerDigits = std::max(form.zero() ? 0 : form.point, integer.zeros);
  const int fractionDigits = std::max(form.zero() ? 0 : form.count - form.point, fraction.zeros);
  const bool negative = form.negative && !form.zero();
  const int digitsAdded = integerDigits + fractionDigits - integer.positions - fraction.positions;

  std::string text;
  text.reserve(pattern.size() + unit.size() + static_cast<std::size_t>(digitsAdded + negative));
  if (negative) text.push_back('-');
  writeInteger(text, form, integer, integerDigits);
  writeFraction(text, form, fraction, fractionDigits);
  text.append(unit);
  return text;
}

std::string numberText(double value) {
  if (!std::isfinite(value)) return {};
  if (value == 0) return "0";
  std::array<char, 32> text;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                 std::chars_format::general, significantDigits);
  std::string result(text.data(), end.ptr);
  if (const auto mark = result.find('e'); mark != std::string::npos) result[mark] = 'E';
  return result;
}

std::string wholeText(std::int64_t value) {
  std::array<char, std::numeric_limits<std::int64_t>::digits10 + 3> text;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value);
  return {text.data(), end.ptr};
}

}  // namespace tarnwick::common
