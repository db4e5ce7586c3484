#include "app/window_set.h"

#include <utility>

namespace tarnwick::app {

WindowSet::~WindowSet() {
  for (auto& [name, entry] : entries_) delete entry.window;
}

void WindowSet::add(std::string name, Load load) {
  entries_.insert_or_assign(std::move(name), Entry{.load = std::move(load), .window = nullptr});
}

bool WindowSet::has(std::string_view name) const {
  return entries_.contains(name);
}

void WindowSet::open(std::string_view name) {
  const auto found = entries_.find(name);
  if (found == entries_.end()) return;
  Entry& entry = found->second;
  if (entry.window == nullptr) {
    entry.window = entry.load();
    // The window may be closed from one of its own handlers, which is still to return to it.
    QObject::connect(entry.window, &ui::Window::unloading, entry.window, [&entry] {
      if (entry.window != nullptr) entry.window->deleteLater();
      entry.window = nullptr;
    });
  }
  entry.window->bringForward();
}

void WindowSet::unload(std::string_view name) {
  if (ui::Window* window = loaded(name)) window->close();
}

ui::Window* WindowSet::loaded(std::string_view name) const {
  const auto found = entries_.find(name);
  return found == entries_.end() ? nullptr : found->second.window.data();
}

}  // namespace tarnwick::app
