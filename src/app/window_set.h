#pragma once

#include "ui/window.h"

#include <QPointer>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwick::app {

// The program's windows by name: each exists at most once, is loaded when it is opened, and loses
// its state when it is closed.
class WindowSet {
public:
  // Creates a window and runs its load step.
  using Load = std::function<ui::Window*()>;

  WindowSet() = default;
  WindowSet(const WindowSet&) = delete;
  WindowSet& operator=(const WindowSet&) = delete;
  ~WindowSet();

  void add(std::string name, Load load);

  // Loads the window, which was added, unless it is loaded, and shows or brings it forward. A
  // window that was closed before comes back where it stood; any other is placed beside the
  // launcher, if one is given.
  void open(std::string_view name, const QWidget* launcher = nullptr);
  // Closes every window that is loaded, in the alphabetical order of their names; one that is
  // closing already is left to it.
  void unloadAll();
  // Answers the window, or nothing while it is not loaded.
  [[nodiscard]] ui::Window* loaded(std::string_view name) const;

private:
  struct Entry {
    Load load;
    QPointer<ui::Window> window;
    std::optional<QPoint> place;  // where it was closed
  };
  static void place(const Entry& entry, const QWidget& launcher);
  std::map<std::string, Entry, std::less<>> entries_;
};

}  // namespace tarnwick::app
