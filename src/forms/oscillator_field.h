#pragma once

#include "common/oscillator.h"
#include "ui/entry_field.h"

#include <functional>

namespace tarnwick::forms {

// Validates an oscillator field, as every window that has one does it: reads the field as MHz,
// passes the number through the oscillator check, shows the accepted frequency in the field and
// recalculates. A frequency above the maximum brings up its message.
void validateOscillator(ui::Window& window, ui::EntryField& field,
                        common::OscillatorSetting& oscillator,
                        const std::function<void()>& recalculate);

}  // namespace tarnwick::forms
