#pragma once

#include <string>

namespace tarnwick::calc {

// The texts in one line: "|" behind each, "/" for the ends of their own lines.
template <typename... Texts>
std::string joined(const Texts&... texts) {
  std::string all;
  ((all.append(texts).append("|")), ...);
  for (std::size_t at = 0; (at = all.find("\r\n", at)) != std::string::npos;)
    all.replace(at, 2, "/");
  return all;
}

}  // namespace tarnwick::calc
