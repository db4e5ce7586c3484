#pragma once

#include <string>
#include <string_view>

// What the program asks of the desktop around it.
namespace tarnwick::ui {

// Replaces the clipboard's content by the text, as plain text with its line ends as they are.
void copyToClipboard(std::string_view text);

// Answers the clipboard's plain text, empty where it holds none.
[[nodiscard]] std::string clipboardText();

// Asks the desktop to open an address (a web site, a new e-mail). Whether it does is not reported.
void openAddress(std::string_view address);

}  // namespace tarnwick::ui
