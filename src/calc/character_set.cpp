#include "calc/character_set.h"

#include <utility>

namespace tarnwick::calc {
namespace {

using common::PixelMatrix;

constexpr std::string_view blankLabel = "$00";

std::string rowLabel(const PixelMatrix& pixels, std::size_t row) {
  constexpr PixelMatrix rowMask((1U << common::matrixColumns) - 1);
  const PixelMatrix value = pixels >> (row * common::matrixColumns) & rowMask;
  return byteText(static_cast<unsigned>(value.to_ulong()));
}

std::string joined(const std::array<std::string, common::matrixRows>& labels) {
  std::string data;
  for (const std::string& label : labels) data += ", " + label;
  return data;
}

}  // namespace

std::string byteText(unsigned value) {
  constexpr std::string_view hexDigits = "0123456789ABCDEF";
  return {'$', hexDigits[value / 16 % 16], hexDigits[value % 16]};
}

void OpenEditor(CharacterSet& set) {
  set.shown = {};
  Clear(set);
  SetLeadText(set, "AB");
  SetFollowText(set, "CD");
  set.kept.SelectedSlot = 0;
}

void TogglePixel(CharacterSet& set, std::size_t p) {
  set.kept.Pixels.flip(p);
  set.shown.LastPixel = static_cast<std::uint8_t>(p);
  UpdateCharacter(set);
}

void UpdateCharacter(CharacterSet& set) {
  const std::size_t p = set.shown.LastPixel;
  const std::size_t row = p / common::matrixColumns;
  CharacterSlot& slot = set.shown.slotTable.at(set.kept.SelectedSlot);

  set.shown.lLine.at(row) = rowLabel(set.kept.Pixels, row);
  slot.picture.set(p, set.kept.Pixels.test(p));
  if (set.kept.Pixels.none()) return DeleteSelectedCharacter(set);

  std::string& data = set.kept.CharacterData.at(set.kept.SelectedSlot);
  data = joined(set.shown.lLine);
  slot.dataDisplay = data.substr(1);
  slot.enabled = true;
}

void drawCharacter(CharacterSet& set, const PixelMatrix& picture) {
  for (const bool on : {true, false})
    for (std::size_t p = 0; p < common::matrixPixels; ++p)
      if (picture.test(p) == on && set.kept.Pixels.test(p) != on) TogglePixel(set, p);
}

void SelectSlot(CharacterSet& set, std::size_t slot) {
  set.kept.Pixels = set.shown.slotTable.at(slot).picture;
  set.kept.SelectedSlot = static_cast<std::uint8_t>(slot);
  for (std::size_t p = 0; p < common::matrixPixels; p += common::matrixColumns) {
    set.shown.LastPixel = static_cast<std::uint8_t>(p);
    UpdateCharacter(set);
  }
}

void InvertAll(CharacterSet& set) {
  for (std::size_t p = 0; p < common::matrixPixels; ++p) TogglePixel(set, p);
}

void Clear(CharacterSet& set) {
  set.shown.lLine.fill(std::string(blankLabel));
  DeleteSelectedCharacter(set);
}

void DeleteSelectedCharacter(CharacterSet& set) {
  set.kept.Pixels.reset();
  set.kept.CharacterData.at(set.kept.SelectedSlot).clear();
  set.shown.slotTable.at(set.kept.SelectedSlot) = {};
}

void DeleteAll(CharacterSet& set) {
  for (std::size_t slot = 0; slot < slotCount; ++slot) {
    set.kept.SelectedSlot = static_cast<std::uint8_t>(slot);
    DeleteSelectedCharacter(set);
  }
  SelectSlot(set, 0);
}

void SetLeadText(CharacterSet& set, std::string text) {
  set.shown.leadText = std::move(text);
}

void SetFollowText(CharacterSet& set, std::string text) {
  set.shown.followText = std::move(text);
}

}  // namespace tarnwick::calc
