#pragma once

#include <QString>

#include <string>
#include <string_view>

// Text crosses the border of the toolkit here and nowhere else: UTF-8 on the program's side.
namespace tarnwick::ui {

[[nodiscard]] inline QString toQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

[[nodiscard]] inline std::string fromQt(const QString& text) {
  return text.toStdString();
}

}  // namespace tarnwick::ui
