#include "forms/oscillator_field.h"

#include "common/number_text.h"

namespace tarnwick::forms {

void validateOscillator(ui::Window& window, ui::EntryField& field,
                        common::OscillatorSetting& oscillator,
                        const std::function<void()>& recalculate) {
  const auto message = oscillator.SetOsc(field.number());
  field.setContents(common::numberText(oscillator.Osc));
  recalculate();
  if (message) window.showMessage(QMessageBox::Warning, message->title, message->text);
}

}  // namespace tarnwick::forms
