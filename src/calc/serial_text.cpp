#include "calc/serial_text.h"

#include "common/number_text.h"
#include "common/read_number.h"
#include "common/rounding.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tarnwick::calc {
namespace {

constexpr std::string_view registerRcsta = "RCSTA = $90";
constexpr std::string_view defineRcsta = "DEFINE HSER_RCSTA 90h";
constexpr std::string_view defineClearOverflow =
    "DEFINE HSER_CLROERR 1 ' Clear overflow automatically";
constexpr std::string_view enablePort = "' Enable serial port & continuous receive";
constexpr std::string_view enable16Bit = "' Enable 16 bit baudrate generator";

template <typename... Pieces>
std::string joined(const Pieces&... pieces) {
  std::string text;
  (text.append(pieces), ...);
  return text;
}

template <typename... Pieces>
std::string line(const Pieces&... pieces) {
  return joined(pieces..., common::lineEnd);
}

// The spaces, comment mark and space behind a register value that bring the mark into one column:
// `spaces` of them behind three digits, more behind fewer.
std::string commentAfter(double value, std::size_t spaces) {
  const std::size_t missingDigits = value < 10 ? 2 : value < 100 ? 1 : 0;
  return std::string(spaces + missingDigits, ' ') + "' ";
}

std::string_view transmitComment(bool brgh) {
  return brgh ? "' Enable transmit, BRGH = 1" : "' Enable transmit, BRGH = 0";
}

std::string registerTxsta(bool brgh) {
  return brgh ? "TXSTA = $24" : "TXSTA = $20";
}

std::string defineTxstaLine(bool brgh) {
  return line("DEFINE HSER_TXSTA ", brgh ? "24h " : "20h ", transmitComment(brgh));
}

// The end of the SPBRG comment: unit of the rate, oscillator and error.
std::string unitOscError(const SerialGoal& goal, const std::string& err) {
  return joined(goal.kBaud ? " KBaud @ " : " Baud @ ", goal.osc, "MHz, ", err);
}

// The SPBRG value of a USART with the comment behind it.
std::string usartSpbrg(const UsartSetup& setup) {
  const auto value = common::toWhole<std::uint8_t>(setup.Spbrg);
  return joined(common::wholeText(value), commentAfter(value, 1), setup.goal.baud,
                unitOscError(setup.goal, common::format(setup.Err, "0.0#%")));
}

bool is16Bit(const EusartSetup& setup) {
  return setup.brg16 != "0";
}
bool isHighSpeed(const EusartSetup& setup) {
  return setup.brgh == "1";
}

std::string highByteLine(const EusartSetup& setup) {
  return line("SPBRGH = ", common::numberText(common::readNumber(setup.spbrgh)));
}

}  // namespace

std::string UsartRegisterText(const UsartSetup& setup) {
  return line(registerRcsta, " ", enablePort) +
         line(registerTxsta(setup.BestBRGH), " ", transmitComment(setup.BestBRGH)) +
         line("SPBRG = ", usartSpbrg(setup));
}

std::string UsartDefineText(const UsartSetup& setup) {
  return line(defineRcsta, " ", enablePort) + defineTxstaLine(setup.BestBRGH) +
         line("DEFINE HSER_SPBRG ", usartSpbrg(setup)) + line(defineClearOverflow);
}

std::string EusartRegisterText(const EusartSetup& setup) {
  const bool highSpeed = isHighSpeed(setup);
  const double value = common::readNumber(setup.spbrg);
  const bool commentLeftOut = !is16Bit(setup) && (value == 10 || value == 100);
  const std::string baudComment =
      commentLeftOut ? std::string() : commentAfter(value, 3) + setup.goal.baud;

  std::string text =
      line(registerRcsta, "   ", enablePort) +
      line(registerTxsta(highSpeed), "   ", transmitComment(highSpeed)) +
      line("SPBRG = ", common::numberText(value), baudComment, unitOscError(setup.goal, setup.err));
  if (is16Bit(setup)) text += highByteLine(setup) + line(setup.location, " = 1 ", enable16Bit);
  return text;
}

std::string EusartDefineText(const EusartSetup& setup) {
  const double value = common::readNumber(setup.spbrg);
  const std::string spbrg =
      is16Bit(setup) ? common::numberText(value) + commentAfter(value, 1) : setup.spbrg + " ' ";

  std::string text =
      line(defineRcsta, " ", enablePort) + defineTxstaLine(isHighSpeed(setup)) +
      line(defineClearOverflow) +
      line("DEFINE HSER_SPBRG ", spbrg, setup.goal.baud, unitOscError(setup.goal, setup.err));
  if (is16Bit(setup))
    text += highByteLine(setup) + line(setup.location, " = 1         ", enable16Bit);
  return text;
}

}  // namespace tarnwick::calc
