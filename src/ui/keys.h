#pragma once

#include <QAbstractButton>
#include <QKeySequence>

// Buttons that are pressed from elsewhere: by keys, by an assistive tool.
namespace tarnwick::ui {

// Clicks a button as the mouse does: it takes the focus, so that the field which had it is
// validated, and acts unless a message is open or was brought up by that.
void clickFromElsewhere(QAbstractButton& button);

// Lets keys click a button wherever the focus is in its window. Its tooltip names them, also one
// that is set later; its caption does not.
void clickBy(QAbstractButton& button, const QKeySequence& keys);

// Answers the keys that click the button, none if there are none.
[[nodiscard]] QKeySequence keysOf(const QAbstractButton& button);

}  // namespace tarnwick::ui
