#include "common/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>

namespace tarnwick::common {
namespace {

constexpr int significantDigits = 15;

// A finite value as 15 significant decimal digits: 0.d0 d1 d2 ... times ten to the power `point`,
// so `point` is the number of digits before the decimal point.
struct DecimalForm {
  bool negative = false;
  bool zero = true;
  std::array<char, significantDigits + 1> digits{};  // one more for the carry of a rounding
  int count = 0;
  int point = 0;
};

DecimalForm decimalForm(double value) {
  DecimalForm form;
  form.negative = std::signbit(value);
  std::array<char, 32> text;  // d.dddddddddddddde[+-]ddd
  const auto end = std::to_chars(text.data(), text.data() + text.size(), std::fabs(value),
                                 std::chars_format::scientific, significantDigits - 1);
  const char* c = text.data();
  form.digits[0] = *c;
  c += 2;
  for (int i = 1; i < significantDigits; ++i) form.digits[static_cast<std::size_t>(i)] = *c++;
  ++c;
  if (*c == '+') ++c;
  int exponent = 0;
  std::from_chars(c, end.ptr, exponent);
  form.point = exponent + 1;
  form.zero = form.digits[0] == '0';
  form.count = significantDigits;
  while (form.count > 0 && form.digits[static_cast<std::size_t>(form.count - 1)] == '0')
    --form.count;
  return form;
}

// Rounds to `places` digits after the decimal point, halves away from zero.
void roundToPlaces(DecimalForm& form, int places) {
  const int keep = form.point + places;
  if (keep >= form.count) return;
  if (keep < 0) {
    form.count = 0;
    form.zero = true;
    return;
  }
  const bool up = form.digits[static_cast<std::size_t>(keep)] >= '5';
  form.count = keep;
  if (up) {
    int last = keep - 1;
    while (last >= 0 && form.digits[static_cast<std::size_t>(last)] == '9') --last;
    if (last >= 0) {
      ++form.digits[static_cast<std::size_t>(last)];
      form.count = last + 1;
    } else {
      form.digits[0] = '1';
      form.count = 1;
      ++form.point;
    }
  }
  while (form.count > 0 && form.digits[static_cast<std::size_t>(form.count - 1)] == '0')
    --form.count;
  form.zero = form.count == 0;
}

// The digit `place` positions left of the decimal point (0 is the units digit, -1 the tenths).
char digitAt(const DecimalForm& form, int place) {
  const int index = form.point - 1 - place;
  if (index < 0 || index >= form.count) return '0';
  return form.digits[static_cast<std::size_t>(index)];
}

// What a pattern asks for, by the counts that the digits depend on.
struct PatternShape {
  int integerPositions = 0;
  int integerZeros = 0;
  int fractionPositions = 0;
  int fractionZeros = 0;
  bool percent = false;
};

PatternShape shapeOf(std::string_view pattern) {
  PatternShape shape;
  bool point = false;
  for (const char c : pattern) {
    if (c == '%') shape.percent = true;
    if (c == '.') point = true;
    if (c != '0' && c != '#') continue;
    ++(point ? shape.fractionPositions : shape.integerPositions);
    if (c == '0') ++(point ? shape.fractionZeros : shape.integerZeros);
  }
  return shape;
}

int integerDigitsOf(const DecimalForm& form, const PatternShape& shape) {
  const int significant = form.zero || form.point < 0 ? 0 : form.point;
  return significant > shape.integerZeros ? significant : shape.integerZeros;
}

int fractionDigitsOf(const DecimalForm& form, const PatternShape& shape) {
  const int significant = form.zero ? 0 : form.count - form.point;
  return significant > shape.fractionZeros ? significant : shape.fractionZeros;
}

// Writes the pattern character by character, each digit position taking the digits that belong to
// it: the first integer position also those to its left.
std::string write(const DecimalForm& form, const PatternShape& shape, std::string_view pattern) {
  const int integerDigits = integerDigitsOf(form, shape);
  const int fractionDigits = fractionDigitsOf(form, shape);
  std::string text;
  text.reserve(pattern.size() + static_cast<std::size_t>(integerDigits) + 1);
  if (form.negative && !form.zero) text.push_back('-');
  int place = integerDigits - 1;
  int positionsLeft = shape.integerPositions;
  int fractionPlace = 0;
  bool point = false;
  for (const char c : pattern) {
    if (c == '.' && !point) {
      point = true;
      text.push_back(c);
    } else if (c != '0' && c != '#') {
      text.push_back(c);
    } else if (point) {
      if (fractionPlace++ < fractionDigits) text.push_back(digitAt(form, -fractionPlace));
    } else {
      --positionsLeft;
      for (; place >= positionsLeft; --place) text.push_back(digitAt(form, place));
    }
  }
  return text;
}

}  // namespace

std::string format(double value, std::string_view pattern) {
  const PatternShape shape = shapeOf(pattern);
  if (shape.percent) value *= 100;
  if (!std::isfinite(value)) return {};
  DecimalForm form = decimalForm(value);
  roundToPlaces(form, shape.fractionPositions);
  return write(form, shape, pattern);
}

std::string formatWithUnit(double value, std::string_view pattern, std::string_view unit) {
  std::string text = format(value, pattern);
  if (std::isfinite(value)) text += unit;
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
