#pragma once

#include "common/number_text.h"

#include <string>
#include <string_view>

namespace tarnwick::common {

// Appends one line with its line end to a multi-line text.
inline void addLine(std::string& text, std::string_view line) {
  text += line;
  text += lineEnd;
}

}  // namespace tarnwick::common
