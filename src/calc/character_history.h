#pragma once

#include "calc/character_set.h"

#include <cstddef>
#include <vector>

namespace tarnwick::calc {

// Answers whether two sets hold the same characters: data, pictures, descriptions and aliases.
// Which slot is selected, and the row labels, do not count.
[[nodiscard]] bool sameCharacters(const CharacterSet& one, const CharacterSet& other);

// The acts on a character set, to be undone and redone one by one. The texts around the preview
// belong to no act: they stay as they are.
class CharacterHistory {
public:
  // Takes down an act by the set before and after it; what was undone is forgotten, also by one
  // whose last change takes back all others. One that changed nothing is no act. What the same
  // actor does in several changes is one act (a stroke's pixels, a name's letters), up to the next
  // act of another, an undo or `close`; nullptr is an actor whose changes each stand alone.
  void note(const CharacterSet& before, const CharacterSet& after, const void* actor = nullptr);
  // Ends an act that could go on: the next change is an act of its own.
  void close() { actor_ = nullptr; }

  // Makes the set what it was before the last act that is not undone, or after the first one that
  // is; without one it stays as it is.
  void undo(CharacterSet& set);
  void redo(CharacterSet& set);

private:
  struct Act {
    CharacterSet before;
    CharacterSet after;
  };

  std::vector<Act> acts_;
  std::size_t done_ = 0;  // the acts from here on are undone
  const void* actor_ = nullptr;
};

}  // namespace tarnwick::calc
