#include "app/window_set.h"

#include "ui/placement.h"

#include <QApplication>
#include <QScreen>

#include <utility>

namespace tarnwick::app {

WindowSet::~WindowSet() {
  for (auto& [name, entry] : entries_) delete entry.window;
}

void WindowSet::add(std::string name, Load load) {
  entries_[std::move(name)].load = std::move(load);
}

void WindowSet::open(std::string_view name, const QWidget* launcher) {
  Entry& entry = entries_.at(std::string(name));
  if (entry.window == nullptr) {
    entry.window = entry.load();
    // The window may be closed from one of its own handlers, which is still to return to it.
    QObject::connect(entry.window, &ui::Window::unloading, entry.window, [&entry] {
      if (entry.window == nullptr) return;
      entry.place = entry.window->pos();
      entry.window->deleteLater();
      entry.window = nullptr;
    });
    entry.window->fitToScreen();
    if (launcher != nullptr) place(entry, *launcher);
  }
  entry.window->bringForward();
}

void WindowSet::place(const Entry& entry, const QWidget& launcher) {
  ui::Window& window = *entry.window;
  if (entry.place) return window.move(*entry.place);
  QList<QRect> others;
  for (const QWidget* other : QApplication::topLevelWidgets())
    if (other->isVisible()) others << other->frameGeometry();
  QSize frame = launcher.frameGeometry().size() - launcher.size();
  constexpr QSize handles(8, 8);  // that the frame of a window has that can be resized
  if (window.minimumSize() != window.maximumSize()) frame += handles;
  window.move(ui::placeBeside(launcher.frameGeometry(), window.size() + frame,
                              launcher.screen()->availableGeometry(), others)
                  .topLeft());
}

void WindowSet::unloadAll() {
  for (auto& [name, entry] : entries_)
    if (entry.window != nullptr) entry.window->close();
}

ui::Window* WindowSet::loaded(std::string_view name) const {
  const auto found = entries_.find(name);
  return found == entries_.end() ? nullptr : found->second.window.data();
}

}  // namespace tarnwick::app
