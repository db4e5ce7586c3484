#pragma once

#include <QImage>
#include <QWidget>

#include <optional>
#include <string>

// How a window looks, and what it is made of.
namespace tarnwick::tests {

// The controls of a window, in the order in which they were made, without those that the toolkit
// makes inside of others.
QWidgetList controlsOf(const QWidget* window);

// Whether a control is a pixel to be drawn.
bool isCell(const QWidget* control);
// Whether a control holds a result; of a control that holds neither a result nor an entry, nothing.
std::optional<bool> isResult(const QWidget* control);

// What tells which control of which window a check is about.
std::string fullName(const QWidget* control);

// What a control shows; of a slider its position and range.
QString textOf(const QWidget* control);

// The picture of a control that stands on the screen.
QImage onScreen(QWidget* control);

// Fails unless a control has the room that its text needs.
void expectWhole(const QWidget* control);

// Fails unless a window stands on the screen as it would be painted anew, with each text whole but
// for those that users type, and for results so long that only a pasted number makes them.
void expectGoodLook(QWidget* window);

}  // namespace tarnwick::tests
