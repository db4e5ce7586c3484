#pragma once

#include <string>
#include <string_view>

namespace tarnwick::common {

// The line end of every multi-line text that is shown or copied.
inline constexpr std::string_view lineEnd = "\r\n";

// Appends one line, made of the pieces, with its line end to a multi-line text.
template <typename... Pieces>
void addLine(std::string& text, const Pieces&... pieces) {
  (text.append(pieces), ..., text.append(lineEnd));
}

}  // namespace tarnwick::common
