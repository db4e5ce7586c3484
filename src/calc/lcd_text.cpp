#include "calc/lcd_text.h"

#include "common/lines.h"
#include "common/utf8.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace tarnwick::calc {
namespace {

using common::addLine;

// A block's lines under its heading, with an empty line behind; nothing where there are none.
std::string block(std::string_view heading, std::string_view lines) {
  if (lines.empty()) return {};
  std::string text;
  addLine(text, "    '");
  addLine(text, "    '    ", heading);
  addLine(text, "    '    ", std::string(heading.size(), '='));
  text += lines;
  addLine(text, "");
  return text;
}

std::string defineLines(const LcdSettings& settings) {
  struct Define {
    std::string_view prefix;
    std::string_view value;
    std::string_view suffix;
    bool readWrite = false;
  };
  const std::array<Define, 12> defines = {{
      {"DEFINE LCD_DREG ", settings.dataPort, "     ' LCD data port"},
      {"DEFINE LCD_DBIT ", settings.dataBit, "         ' LCD data starting bit"},
      {"DEFINE LCD_RSREG ", settings.registerPort, "    ' LCD register select port"},
      {"DEFINE LCD_RSBIT ", settings.registerBit, "        ' LCD register select bit"},
      {"DEFINE LCD_EREG ", settings.enablePort, "     ' LCD enable port"},
      {"DEFINE LCD_EBIT ", settings.enableBit, "         ' LCD enable bit"},
      {"DEFINE LCD_RWREG ", settings.readWritePort, "    ' LCD read/write port", true},
      {"DEFINE LCD_RWBIT ", settings.readWriteBit, "        ' LCD read/write bit", true},
      {"DEFINE LCD_BITS ", settings.busWidth, "         ' LCD data bus size"},
      {"DEFINE LCD_LINES ", settings.lines, "        ' Number lines on LCD"},
      {"DEFINE LCD_COMMANDUS ", settings.commandDelayUs, " ' Command delay time in us"},
      {"DEFINE LCD_DATAUS ", settings.dataDelayUs, "      ' Data delay time in us"},
  }};
  std::string lines;
  for (const Define& define : defines) {
    if (define.readWrite && settings.readWritePort.empty()) continue;
    addLine(lines, define.prefix, define.value, define.suffix);
  }
  return lines;
}

std::size_t characterCount(std::string_view text) {
  return text.size() -
         static_cast<std::size_t>(std::ranges::count_if(text, common::continuesCharacter));
}

std::string padded(std::string_view alias) {
  const std::size_t length = std::min(characterCount(alias), nameLength);
  return std::string(alias).append(nameLength - length, ' ');
}

}  // namespace

std::string BuildLcdText(const LcdSettings& settings, bool includeDefines,
                         const CharacterSet& set) {
  const std::string setUp = includeDefines ? defineLines(settings) : std::string();
  std::string definitions;
  std::string constants;
  for (std::size_t i = 0; i < slotCount; ++i) {
    const CharacterSlot& slot = set.shown.slotTable[i];
    const std::string& data = set.kept.CharacterData[i];
    if (!slot.constantAlias.empty())
      addLine(constants, padded(slot.constantAlias), " CON ", std::to_string(i));
    if (!data.empty()) addLine(definitions, CgramCommand[i], data, " ' ", slot.description);
  }
  return block("LCD setup", setUp) + block("Custom character definition", definitions) +
         block("Custom character constant(s)", constants);
}

}  // namespace tarnwick::calc
