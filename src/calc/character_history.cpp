#include "calc/character_history.h"

#include <utility>

namespace tarnwick::calc {
namespace {

bool sameAll(const CharacterSet& one, const CharacterSet& other) {
  return one.kept == other.kept && one.shown.slotTable == other.shown.slotTable &&
         one.shown.lLine == other.shown.lLine;
}

void restore(CharacterSet& set, CharacterSet was) {
  was.shown.leadText.swap(set.shown.leadText);
  was.shown.followText.swap(set.shown.followText);
  set = std::move(was);
}

}  // namespace

bool sameCharacters(const CharacterSet& one, const CharacterSet& other) {
  return one.kept.CharacterData == other.kept.CharacterData &&
         one.shown.slotTable == other.shown.slotTable;
}

void CharacterHistory::note(const CharacterSet& before, const CharacterSet& after,
                            const void* actor) {
  if (sameAll(before, after)) return;
  const bool goesOn = actor != nullptr && actor == actor_;
  actor_ = actor;
  if (!goesOn) {
    acts_.resize(done_++);
    acts_.push_back({before, after});
  } else if (sameAll(acts_.back().before, after)) {
    acts_.pop_back();
    --done_;
    close();
  } else {
    acts_.back().after = after;
  }
}

void CharacterHistory::undo(CharacterSet& set) {
  close();
  if (done_ > 0) restore(set, acts_[--done_].before);
}

void CharacterHistory::redo(CharacterSet& set) {
  close();
  if (done_ < acts_.size()) restore(set, acts_[done_++].after);
}

}  // namespace tarnwick::calc
