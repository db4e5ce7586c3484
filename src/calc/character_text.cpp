#include "calc/character_text.h"

#include "common/utf8.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tarnwick::calc {
namespace {

using common::PixelMatrix;
using std::string_view;

constexpr string_view blanks = " \t";
constexpr string_view lineEnds = "\r\n";
constexpr string_view commentMarks = "';";

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

bool isWordPart(char c) {
  return isDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

char lowerCase(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// Compares a word with one in lower case.
bool isWord(string_view word, string_view lower) {
  return std::ranges::equal(word, lower, {}, lowerCase);
}

// Cuts off and answers what stands before the first of some characters, or all.
string_view cutBefore(string_view& text, string_view ends) {
  const string_view head = text.substr(0, text.find_first_of(ends));
  text.remove_prefix(head.size());
  return head;
}

string_view cutWord(string_view& line) {
  line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
  return cutBefore(line, blanks);
}

// The number that the digits write, modulo 2^32; none where there is another character or nothing.
std::optional<unsigned> number(string_view digits, unsigned base) {
  constexpr string_view all = "0123456789abcdef";
  if (digits.empty()) return std::nullopt;
  unsigned value = 0;
  for (const char c : digits) {
    const std::size_t digit = all.find(lowerCase(c));
    if (digit >= base) return std::nullopt;
    value = value * base + static_cast<unsigned>(digit);
  }
  return value;
}

// The value of a word, of which "$" or "%" may be the first character.
std::optional<unsigned> valueOf(string_view word) {
  if (word[0] == '$') return number(word.substr(1), 16);
  if (word[0] == '%') return number(word.substr(1), 2);
  if (!isDigit(word[0])) return std::nullopt;
  if (lowerCase(word.back()) == 'h') return number(word.substr(0, word.size() - 1), 16);
  const string_view prefix = word.substr(0, 2);
  if (isWord(prefix, "0x")) return number(word.substr(2), 16);
  if (isWord(prefix, "0b")) return number(word.substr(2), 2);
  return number(word, 10);
}

// Whether what stands from start to end is the number of elements in name[8].
bool isElementCount(string_view text, std::size_t start, std::size_t end) {
  return start >= 2 && text[start - 1] == '[' && isWordPart(text[start - 2]) && end < text.size() &&
         text[end] == ']';
}

// The values in a text, in their order.
std::vector<unsigned> valuesIn(string_view text) {
  std::vector<unsigned> values;
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t start = i++;
    if (!isWordPart(text[start]) && text[start] != '$' && text[start] != '%') continue;
    while (i < text.size() && isWordPart(text[i])) ++i;
    if (isElementCount(text, start, i)) continue;
    if (const auto value = valueOf(text.substr(start, i - start))) values.push_back(*value);
  }
  return values;
}

// The picture whose rows, top row first, are the first eight values; none where there are fewer.
std::optional<PixelMatrix> pictureOf(const std::vector<unsigned>& values) {
  if (values.size() < common::matrixRows) return std::nullopt;
  constexpr unsigned rowMask = (1U << common::matrixColumns) - 1;
  PixelMatrix picture;
  for (std::size_t row = 0; row < common::matrixRows; ++row)
    picture |= PixelMatrix(values[row] & rowMask) << (row * common::matrixColumns);
  return picture;
}

// As much of a name as its field holds, which counts a character beyond 16 bits as two.
std::string shortened(string_view name) {
  std::size_t length = 0;
  for (std::size_t i = 0; i < name.size(); ++i) {
    if (common::continuesCharacter(name[i])) continue;
    length += static_cast<unsigned char>(name[i]) >= 0xF0 ? 2U : 1U;
    if (length > nameLength) return std::string(name.substr(0, i));
  }
  return std::string(name);
}

// The slot whose first row the LCD writes next after a command byte.
std::optional<std::size_t> slotOf(unsigned command) {
  constexpr unsigned setCgramAddress = 0x40;
  constexpr unsigned end = setCgramAddress + slotCount * common::matrixRows;
  if (command < setCgramAddress || command >= end) return std::nullopt;
  const std::size_t address = command - setCgramAddress;
  if (address % common::matrixRows != 0) return std::nullopt;
  return address / common::matrixRows;
}

// A line from a word on that stands before its comment; nothing where it does not.
std::optional<string_view> statementOf(string_view line, string_view lower) {
  const string_view code = line.substr(0, line.find_first_of(commentMarks));
  for (std::size_t i = 0; i + lower.size() <= code.size(); ++i) {
    const std::size_t end = i + lower.size();
    const bool isWhole =
        (i == 0 || !isWordPart(code[i - 1])) && (end == code.size() || !isWordPart(code[end]));
    if (isWhole && isWord(code.substr(i, lower.size()), lower)) return line.substr(i);
  }
  return std::nullopt;
}

// What an LCDOUT line sends.
struct LcdOutput {
  std::optional<std::size_t> slot;  // at whose first row it begins to write
  std::vector<unsigned> bytes;      // without the command
  string_view comment;
};

LcdOutput lcdOutput(string_view line) {
  constexpr unsigned commandFollows = 0xFE;
  LcdOutput output;
  output.bytes = valuesIn(cutBefore(line, commentMarks));
  if (output.bytes.size() >= 2 && output.bytes[0] == commandFollows) {
    output.slot = slotOf(output.bytes[1]);
    output.bytes.erase(output.bytes.begin(), output.bytes.begin() + 2);
  }
  if (!line.empty()) line.remove_prefix(1);
  if (line.starts_with(' ')) line.remove_prefix(1);
  output.comment = line;
  return output;
}

// An alias and the character's code that it stands for.
struct Constant {
  std::string alias;
  std::size_t slot;
  bool inColumns;  // as BuildLcdText writes it
};

std::optional<std::size_t> codeIn(string_view text) {
  const auto values = valuesIn(cutBefore(text, commentMarks));
  if (values.size() != 1 || values[0] >= slotCount) return std::nullopt;
  return values[0];
}

// The columns of a line in which BuildLcdText writes an alias.
string_view aliasColumns(string_view line) {
  std::size_t characters = 0;
  for (std::size_t i = 0; i < line.size(); ++i)
    if (!common::continuesCharacter(line[i]) && characters++ == nameLength)
      return line.substr(0, i);
  return line;
}

// What a CON line says; nothing where it is another line, or no character's.
std::optional<Constant> constantIn(string_view line) {
  string_view alias = aliasColumns(line);
  string_view rest = line.substr(alias.size());
  constexpr string_view keyword = " CON ";
  const bool inColumns = rest.starts_with(keyword) && rest.size() == keyword.size() + 1;
  if (!inColumns) {
    rest = line;
    alias = cutWord(rest);
  }
  if (!isWord(cutWord(rest), "con")) return std::nullopt;
  const auto slot = codeIn(rest);
  if (!slot) return std::nullopt;
  // Of nothing but blanks, one is the alias.
  alias = alias.substr(0, std::max<std::size_t>(alias.find_last_not_of(' ') + 1, 1));
  return Constant{shortened(alias), *slot, inColumns};
}

class Reader {
public:
  CharacterText read(string_view text) {
    while (!text.empty()) {
      readLine(cutBefore(text, lineEnds));
      text.remove_prefix(std::min<std::size_t>(text.size(), 1));
    }
    bool defines = false;
    for (std::size_t slot = 0; slot < slotCount; ++slot) {
      if (!read_.definitions[slot]) continue;
      read_.definitions[slot]->constantAlias = aliases_[slot];
      defines = true;
    }
    if (defines) return read_;
    read_.picture = pictureOf(loose_.size() < common::matrixRows ? withComments_ : loose_);
    return read_;
  }

private:
  void readLine(string_view line) {
    if (const auto constant = constantIn(line)) return readConstant(*constant);
    string_view rest = line;
    if (isWord(cutWord(rest), "define") || isWord(cutWord(rest), "con")) return;
    if (const auto statement = statementOf(line, "lcdout"))
      return readOutput(lcdOutput(*statement));
    const std::size_t comment = std::min(line.find("//"), line.find_first_of(commentMarks));
    append(valuesIn(line), withComments_);
    append(valuesIn(line.substr(0, comment)), loose_);
  }

  void readConstant(const Constant& constant) {
    std::string& alias = aliases_.at(constant.slot);
    const bool isFirst = read_.definitions.at(constant.slot) && alias.empty();
    if (constant.inColumns || isFirst) alias = constant.alias;
  }

  void readOutput(const LcdOutput& output) {
    const auto picture = pictureOf(output.bytes);
    if (output.slot && picture)
      read_.definitions.at(*output.slot) = {*picture, shortened(output.comment), {}};
    append(output.bytes, withComments_);
    append(output.bytes, loose_);
  }

  static void append(const std::vector<unsigned>& values, std::vector<unsigned>& to) {
    to.insert(to.end(), values.begin(), values.end());
  }

  CharacterText read_;
  std::array<std::string, slotCount> aliases_;
  std::vector<unsigned> loose_;         // without those in comments
  std::vector<unsigned> withComments_;  // for texts in which comment marks are something else
};

}  // namespace

CharacterText readCharacters(string_view text) {
  return Reader().read(text);
}

void pasteCharacters(CharacterSet& set, string_view text) {
  const CharacterText read = readCharacters(text);
  for (std::size_t slot = slotCount; slot-- > 0;) {
    const auto& definition = read.definitions[slot];
    if (!definition) continue;
    SelectSlot(set, slot);
    drawCharacter(set, definition->picture);
    CharacterSlot& filled = set.shown.slotTable[slot];
    if (!filled.enabled) continue;
    filled.description = definition->description;
    filled.constantAlias = definition->constantAlias;
  }
  if (!read.picture) return;
  SelectSlot(set, set.kept.SelectedSlot);
  drawCharacter(set, *read.picture);
}

std::string characterBytes(const CharacterSet& set) {
  const std::size_t slot = set.kept.SelectedSlot;
  const std::string& data = set.kept.CharacterData.at(slot);
  const bool isShown = set.shown.slotTable.at(slot).enabled;
  return data.empty() || !isShown ? "$00, $00, $00, $00, $00, $00, $00, $00" : data.substr(2);
}

}  // namespace tarnwick::calc
