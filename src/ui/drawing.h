#pragma once

#include <QColor>
#include <QRect>

class QPainter;
class QPalette;

// Lines and colours that can be seen on every screen.
namespace tarnwick::ui {

// What a text, and what the edge of a control, needs to be told from its ground.
// Source: Web Content Accessibility Guidelines 2.1, contrast minimum and non-text contrast.
inline constexpr double textContrast = 4.5;
inline constexpr double edgeContrast = 3;

// Answers the contrast of two colours, 1 (the same) to 21 (black and white).
// Source: Web Content Accessibility Guidelines 2.1, contrast ratio and relative luminance.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

// Answers the colour, moved towards black or white as far as it takes to reach a contrast with the
// ground; where none reaches it, the one of the two that comes closest.
[[nodiscard]] QColor distinct(const QColor& color, const QColor& ground, double wanted);

// Answers a colour between two, at 0 the first and at 1 the second.
[[nodiscard]] QColor between(const QColor& first, const QColor& second, double part);

// Answers the colour of a line that groups controls or frames a result: seen, but less than the
// edge of a field that takes an entry.
[[nodiscard]] QColor frameColor(const QPalette& palette);

// Answers the ground of a line that is marked as the best or the current one.
[[nodiscard]] QColor markColor(const QPalette& palette);

// Answers the colour of the frame of what has the focus.
[[nodiscard]] QColor focusColor(const QPalette& palette);

// Draws a frame just inside a rectangle with all of its lines whole, and equally thick, at every
// scale factor: they fill device pixels that are wholly inside the rectangle. `width` is in logical
// pixels.
void drawEdge(QPainter& painter, const QRectF& rect, const QColor& color, int width = 1);

}  // namespace tarnwick::ui
