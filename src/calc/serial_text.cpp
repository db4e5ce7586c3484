#include "calc/serial_text.h"

#include "common/lines.h"
#include "common/number_text.h"
#include "common/rounding.h"

#include <cstddef>
#include <cstdint>

namespace tarnwick::calc {
namespace {

using common::addLine;
using common::wholeText;

constexpr std::string_view registerRcsta = "RCSTA = $90";
constexpr std::string_view defineRcstaLine =
    "DEFINE HSER_RCSTA 90h ' Enable serial port & continuous receive";
constexpr std::string_view defineClearOverflowLine =
    "DEFINE HSER_CLROERR 1 ' Clear overflow automatically";
constexpr std::string_view enablePort = "' Enable serial port & continuous receive";
constexpr std::string_view enable16Bit = "' Enable 16 bit baudrate generator";

// The spaces, comment mark and space behind a register value that bring the mark into one column:
// `spaces` of them behind three digits, more behind fewer.
std::string commentAfter(int value, std::size_t spaces) {
  const std::size_t missingDigits = value < 10 ? 2 : value < 100 ? 1 : 0;
  return std::string(spaces + missingDigits, ' ') + "' ";
}

std::string_view transmitComment(bool brgh) {
  return brgh ? "' Enable transmit, BRGH = 1" : "' Enable transmit, BRGH = 0";
}

std::string_view registerTxsta(bool brgh) {
  return brgh ? "TXSTA = $24" : "TXSTA = $20";
}

std::string_view defineTxsta(bool brgh) {
  return brgh ? "DEFINE HSER_TXSTA 24h " : "DEFINE HSER_TXSTA 20h ";
}

// The end of the SPBRG comment: unit of the rate, oscillator and error.
std::string unitOscError(const SerialGoal& goal, const std::string& err) {
  return (goal.kBaud ? " KBaud @ " : " Baud @ ") + goal.osc + "MHz, " + err;
}

// The SPBRG value of a USART with the comment behind it.
std::string usartSpbrg(const SerialGoal& goal, const BaudRow& row) {
  const auto value = common::toWhole<std::uint8_t>(row.Spbrg);
  return wholeText(value) + commentAfter(value, 1) + goal.baud +
         unitOscError(goal, errorText(row.Err));
}

}  // namespace

std::string UsartRegisterText(const SerialGoal& goal, const UsartMatch& match) {
  std::string text;
  addLine(text, registerRcsta, " ", enablePort);
  addLine(text, registerTxsta(match.BestBRGH), " ", transmitComment(match.BestBRGH));
  addLine(text, "SPBRG = ", usartSpbrg(goal, match.row));
  return text;
}

std::string UsartDefineText(const SerialGoal& goal, const UsartMatch& match) {
  std::string text;
  addLine(text, defineRcstaLine);
  addLine(text, defineTxsta(match.BestBRGH), transmitComment(match.BestBRGH));
  addLine(text, "DEFINE HSER_SPBRG ", usartSpbrg(goal, match.row));
  addLine(text, defineClearOverflowLine);
  return text;
}

std::string EusartRegisterText(const SerialGoal& goal, const EusartShown& shown,
                               std::string_view location) {
  const auto& [texts, brghText, registers, BRGH] = shown.finalMatch;
  const bool commentLeftOut =
      !shown.FinalBRG16 && (registers.low == 10 || registers.low == 100);  // on purpose
  std::string text;
  addLine(text, registerRcsta, "   ", enablePort);
  addLine(text, registerTxsta(BRGH), "   ", transmitComment(BRGH));
  addLine(text, "SPBRG = ", wholeText(registers.low),
          commentLeftOut ? "" : commentAfter(registers.low, 3) + goal.baud,
          unitOscError(goal, texts.err));
  if (!shown.FinalBRG16) return text;
  addLine(text, "SPBRGH = ", wholeText(registers.high));
  addLine(text, location, " = 1 ", enable16Bit);
  return text;
}

std::string EusartDefineText(const SerialGoal& goal, const EusartShown& shown,
                             std::string_view location) {
  const auto& [texts, brghText, registers, BRGH] = shown.finalMatch;
  std::string text;
  addLine(text, defineRcstaLine);
  addLine(text, defineTxsta(BRGH), transmitComment(BRGH));
  addLine(text, defineClearOverflowLine);
  addLine(text, "DEFINE HSER_SPBRG ",
          shown.FinalBRG16 ? wholeText(registers.low) + commentAfter(registers.low, 1)
                           : texts.spbrg + " ' ",  // unaligned on purpose
          goal.baud, unitOscError(goal, texts.err));
  if (!shown.FinalBRG16) return text;
  addLine(text, "SPBRGH = ", wholeText(registers.high));
  addLine(text, location, " = 1         ", enable16Bit);
  return text;
}

}  // namespace tarnwick::calc
