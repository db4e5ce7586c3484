#include "ui/placement.h"

#include <QEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cmath>

namespace tarnwick::ui {

QRect placeBeside(const QRect& launcher, QSize window, const QRect& screen,
                  const QList<QRect>& others) {
  const auto at = [&](int left, int top) { return QRect(QPoint(left, top), window); };
  const int top =
      std::max(std::min(launcher.top(), screen.bottom() + 1 - window.height()), screen.top());
  const int left =
      std::max(std::min(launcher.left(), screen.right() + 1 - window.width()), screen.left());
  const std::array places{at(launcher.right() + 1, top), at(launcher.left() - window.width(), top),
                          at(left, launcher.bottom() + 1),
                          at(left, launcher.top() - window.height())};
  const auto isOnScreen = [&](const QRect& place) { return screen.contains(place); };
  const auto isFree = [&](const QRect& place) {
    return isOnScreen(place) && std::ranges::none_of(others, [&](const QRect& other) {
             return other.intersects(place);
           });
  };
  if (const auto free = std::ranges::find_if(places, isFree); free != places.end()) return *free;
  if (const auto any = std::ranges::find_if(places, isOnScreen); any != places.end()) return *any;
  return at(std::max(screen.right() + 1 - window.width(), screen.left()), top);
}

namespace {

// Keeps wheel steps from a control, so that they reach what it scrolls in.
class WheelGuard : public QObject {
public:
  using QObject::QObject;

  bool eventFilter(QObject*, QEvent* event) override {
    const bool isWheel = event->type() == QEvent::Wheel;
    if (isWheel) event->ignore();
    return isWheel;
  }
};

}  // namespace

void padToDevicePixels(QWidget& window) {
  QLayout* layout = window.layout();
  const QMargins around = layout->contentsMargins();
  if (around.isNull()) return;
  const double scale = window.devicePixelRatio();
  const int step = qRound(scale);  // in device pixels: the toolkit asks desktops for no less
  const auto missing = [&](int length) {
    constexpr int most = 20;  // enough for every factor in steps of a tenth or a quarter
    for (int more = 0; more <= most; ++more) {
      const double steps = (length + more) * scale / step;
      if (std::abs(steps - std::round(steps)) < 1e-6) return more;
    }
    return 0;
  };
  const QSize whole = window.sizeHint();
  const int right = missing(whole.width());
  const int bottom = missing(whole.height());
  layout->setContentsMargins(
      around + QMargins(right / 2, bottom / 2, right - right / 2, bottom - bottom / 2));
}

QScrollArea* scrollIfTooLarge(QWidget& window) {
  constexpr QSize frame(16, 40);  // what a desktop puts around a window, which is not known yet
  const QSize room = window.screen()->availableSize() - frame;
  const QSize whole = window.sizeHint();
  if (whole.width() <= room.width() && whole.height() <= room.height()) return nullptr;

  auto* area = new QScrollArea(&window);
  auto* content = new QWidget(&window);
  content->setLayout(window.layout());  // which takes the window's controls along
  area->setWidget(content);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  auto* around = new QVBoxLayout(&window);
  around->setContentsMargins(0, 0, 0, 0);
  around->addWidget(area);

  auto* guard = new WheelGuard(area);  // which owns it
  for (auto* control : content->findChildren<QWidget*>())
    if (control->inherits("QComboBox") || control->inherits("QSlider"))
      control->installEventFilter(guard);
  // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
  const int bar = area->verticalScrollBar()->sizeHint().width();
  const QSize most = whole + QSize(whole.height() > room.height() ? bar : 0,
                                   whole.width() > room.width() ? bar : 0);
  window.setMaximumSize(most);
  window.resize(most.boundedTo(room));
  return area;
}

void bringIntoView(QScrollArea& area, const QWidget& control) {
  constexpr int around = 6;
  const QRect place(control.mapTo(area.widget(), QPoint()), control.size());
  area.ensureVisible(place.right(), place.bottom(), around, around);
  area.ensureVisible(place.left(), place.top(), around, around);
}

}  // namespace tarnwick::ui
