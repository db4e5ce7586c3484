#include "calc/eusart.h"

#include "common/number_text.h"
#include "common/read_number.h"
#include "common/rounding.h"

#include <cmath>
#include <cstddef>
#include <utility>

namespace tarnwick::calc {
namespace {

using common::wholeText;

// A group of two rows and its better one.
struct Group {
  std::array<std::optional<BaudRow>, 2> rows;
  std::optional<bool> brgh = betterBRGH(rows[0], rows[1]);

  [[nodiscard]] bool complete() const { return rows[0] && rows[1]; }
  [[nodiscard]] const BaudRow& better() const { return *rows[*brgh ? 1 : 0]; }
  // A group without a usable row loses with the error that it has here.
  [[nodiscard]] double err() const { return brgh ? better().Err : 666666; }
};

// How a row is shown whose register value is a pair of bytes.
RateTexts pairTexts(const std::optional<BaudRow>& row, bool kBaud) {
  RateTexts texts = rateTexts(row, kBaud);
  if (!row) return texts;
  const SpbrgBytes bytes = spbrgBytes(row->Spbrg);
  texts.spbrg = wholeText(bytes.low);
  texts.spbrgh = wholeText(bytes.high);
  return texts;
}

EusartMatch matchOf(const Group& group, RateTexts texts) {
  return {.texts = std::move(texts),
          .brghText = bitText(*group.brgh),
          .registers = spbrgBytes(group.better().Spbrg),
          .BRGH = *group.brgh};
}

void showBest(EusartShown& shown, const Group& group) {
  shown.best = group.brgh ? matchOf(group, shown.rows[*group.brgh ? 1 : 0]) : EusartMatch{};
}

// Unless both rows are usable, what is blanked beside this group's error is the other group's match
// (docs/ON_PURPOSE.md).
void showBest16(EusartShown& shown, const Group& group) {
  if (!group.complete()) {
    shown.best16.texts.err.clear();
    const std::string err = shown.best.texts.err;  // which stays
    shown.best = {};
    shown.best.texts.err = err;
  }
  if (group.brgh) shown.best16 = matchOf(group, shown.rows[*group.brgh ? 3 : 2]);
}

void showFinal(EusartShown& shown, const Group& group, const Group& group16) {
  const bool BRG16 = !(std::fabs(group.err()) < std::fabs(group16.err()));
  shown.finalMatch = BRG16 ? shown.best16 : shown.best;
  shown.finalMatch.texts.err = errorText((BRG16 ? group16 : group).err());
  shown.FinalBRG16 = BRG16;
  shown.brg16Text = bitText(BRG16);
}

// The final SPBRGH keeps what it showed (docs/ON_PURPOSE.md).
void showNoMatch(EusartShown& shown) {
  shown.canCopy = false;
  shown.canLocate = false;
  const EusartMatch before = std::exchange(shown.finalMatch, {});
  shown.finalMatch.texts.spbrgh = before.texts.spbrgh;
  shown.finalMatch.registers.high = before.registers.high;
  shown.brg16Text.clear();
  shown.FinalBRG16 = true;
}

}  // namespace

std::optional<EusartRows> eusartRows(double foscMHz, double goalBaud) {
  EusartRows rows;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const BaudMode& mode = eusartModes[i];
    auto spbrg = wantedSpbrg(mode, foscMHz, goalBaud);
    if (!spbrg) return std::nullopt;
    if (*spbrg > mode.maxSpbrg) spbrg = mode.maxSpbrg;
    if (!(*spbrg > 0)) continue;
    rows[i] = baudRow(mode, foscMHz, goalBaud, *spbrg);
    if (!rows[i]) return std::nullopt;
    rows[i]->Err = common::readNumber(common::numberText(rows[i]->Err));
  }
  return rows;
}

SpbrgBytes spbrgBytes(double spbrg) {
  const int value = common::toWhole<int>(spbrg);
  return {.low = value & 255, .high = (value & ~255) / 256};
}

EusartShown next(EusartShown shown, const EusartInputs& inputs) {
  const auto& [foscMHz, rate, kBaud] = inputs.baud;
  return next(std::move(shown), eusartRows(foscMHz, goalBaud(rate, kBaud)), kBaud,
              !inputs.location.empty());
}

EusartShown next(EusartShown shown, const std::optional<EusartRows>& rows, bool kBaud,
                 bool hasLocation) {
  shown.rows = {};
  shown.matchesAreOld = true;
  if (!rows) {
    shown.canCopy = false;
    return shown;
  }
  const Group group{{(*rows)[0], (*rows)[1]}};
  const Group group16{{(*rows)[2], (*rows)[3]}};
  for (std::size_t i = 0; i < 2; ++i) {
    shown.rows[i] = rateTexts(group.rows[i], kBaud);
    shown.rows[i + 2] = pairTexts(group16.rows[i], kBaud);
  }
  if (!group.brgh && !group16.brgh) {
    showNoMatch(shown);
    return shown;
  }
  shown.matchesAreOld = false;
  showBest(shown, group);
  showBest16(shown, group16);
  showFinal(shown, group, group16);
  shown.canLocate = true;
  if (hasLocation) shown.canCopy = true;
  return shown;
}

EusartShown locationChosen(EusartShown shown, const std::string& location) {
  if (!location.empty()) shown.canCopy = true;
  return shown;
}

}  // namespace tarnwick::calc
