#pragma once

#include <QList>
#include <QRect>
#include <QScrollArea>

// Where windows stand on a screen.
namespace tarnwick::ui {

// Answers where the frame of a window of this size is to stand to be wholly on the screen: beside
// the launcher's, or below or above it, where it covers none of the others if there is such a
// place, otherwise as near to the launcher's right as the screen allows.
[[nodiscard]] QRect placeBeside(const QRect& launcher, QSize window, const QRect& screen,
                                const QList<QRect>& others);

// Gives a window the few pixels more that make its size a whole number of the screen's: rounded by
// the desktop, it would move its controls once it is shown. A window without margins, whose picture
// reaches its edges, stays as it is. Called once, before a window is first shown.
void padToDevicePixels(QWidget& window);

// Lets a window that is larger than the usable area of its screen scroll, and be resized up to its
// whole size; answers what it scrolls in. The wheel then scrolls, and leaves lists and sliders
// alone. Answers nothing where the window fits. Called once, before the window is first shown.
QScrollArea* scrollIfTooLarge(QWidget& window);

// Scrolls until a control is seen whole, where there is room for it.
void bringIntoView(QScrollArea& area, const QWidget& control);

}  // namespace tarnwick::ui
