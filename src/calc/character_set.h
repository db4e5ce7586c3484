#pragma once

#include "common/pixel_matrix.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarnwick::calc {

// The user-defined characters that an HD44780-type LCD controller keeps in its character generator
// RAM under the codes 0 to 7, and the editor that draws them.
inline constexpr std::size_t slotCount = 8;

// The most characters of a slot's description and of its constant alias.
inline constexpr std::size_t nameLength = 20;

// PBP text that sets the LCD's CGRAM address to the first row of each slot: command byte
// $40 + 8 * slot. Source: HD44780U data sheet, instruction "Set CGRAM address".
inline constexpr std::array<std::string_view, slotCount> CgramCommand = {
    "LCDOUT $FE, $40", "LCDOUT $FE, $48", "LCDOUT $FE, $50", "LCDOUT $FE, $58",
    "LCDOUT $FE, $60", "LCDOUT $FE, $68", "LCDOUT $FE, $70", "LCDOUT $FE, $78"};

// Answers a byte as PBP writes it, "$0E".
[[nodiscard]] std::string byteText(unsigned value);

// One row of the slot table, as it is shown.
struct CharacterSlot {
  common::PixelMatrix picture;  // the only store of the slot's pixels
  std::string dataDisplay;      // the character data from its second character on
  std::string description;      // UTF-8, free text
  std::string constantAlias;    // UTF-8, name of the constant that stands for the character's code
  bool enabled = false;         // description and alias can be edited

  bool operator==(const CharacterSlot&) const = default;
};

// The eight characters and the state of their editor.
struct CharacterSet {
  // Outlives the editor's window. Opening it anew blanks the grid and drops the data of the slot
  // selected last; the data of the other slots stays, although nothing in the window shows it.
  struct Kept {
    // Eight row labels, each after ", "; empty while the slot is not in use.
    std::array<std::string, slotCount> CharacterData;
    common::PixelMatrix Pixels;     // in the editing grid and the preview
    std::uint8_t SelectedSlot = 0;  // being edited

    bool operator==(const Kept&) const = default;
  };

  // Starts afresh with every opening of the window.
  struct Shown {
    std::array<CharacterSlot, slotCount> slotTable;
    // Row values, "$00" to "$1F". Character data is built from them as they stand, also where they
    // no longer match the grid: deleting a character leaves them behind.
    std::array<std::string, common::matrixRows> lLine;
    std::string leadText;        // UTF-8, on the simulated LCD to the left of the character
    std::string followText;      // UTF-8, to the right of it
    std::uint8_t LastPixel = 0;  // toggled last: the row that UpdateCharacter recomputes
  };

  Kept kept;
  Shown shown;
};

// The operations change the set in place. A pixel or slot number out of range is a fault of the
// caller and throws std::out_of_range.

// The window is opened: blank grid, pictures and fields, labels "$00", slot 0 selected, "AB" and
// "CD" around the preview. The data of the slot that was selected is dropped, that of the others
// kept.
void OpenEditor(CharacterSet& set);

// Toggles pixel p of the selected slot and refreshes its row and what depends on it.
void TogglePixel(CharacterSet& set, std::size_t p);

// Recomputes the label of LastPixel's row, that pixel of the selected slot's picture and the slot's
// character data. A slot without a pixel that is on loses its data, description and alias.
void UpdateCharacter(CharacterSet& set);

// Toggles the pixels in which the selected slot's picture differs from the one given, from pixel 0
// on, first those that go on, then those that go off: description and alias are lost only where the
// new picture is blank.
void drawCharacter(CharacterSet& set, const common::PixelMatrix& picture);

// Loads the slot's picture into the grid and recomputes all eight rows.
void SelectSlot(CharacterSet& set, std::size_t slot);

// Toggles every pixel, one after the other from pixel 0 on. Where the slot has no pixel on in
// between, its description and alias are lost.
void InvertAll(CharacterSet& set);

// Deletes the selected character and resets the row labels to "$00".
void Clear(CharacterSet& set);

// Deletes the selected slot's picture, data, description and alias; the row labels stay
// (docs/ON_PURPOSE.md).
void DeleteSelectedCharacter(CharacterSet& set);

// Deletes every slot and selects slot 0, which recomputes the row labels.
void DeleteAll(CharacterSet& set);

// Shows the text on the simulated LCD in front of the character, or behind it.
void SetLeadText(CharacterSet& set, std::string text);
void SetFollowText(CharacterSet& set, std::string text);

}  // namespace tarnwick::calc
