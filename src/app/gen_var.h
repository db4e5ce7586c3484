#pragma once

#include "calc/character_set.h"
#include "common/oscillator.h"

#include <string>

namespace tarnwick::app {

// What the whole program shares while it runs.
struct GenVar {
  common::OscillatorSetting oscillator;
  calc::CharacterSet characters;  // of the LCD generator; part of it outlives that window
};

// Asks the desktop to open a web site.
void OpenWebSite(const std::string& address);

// Asks the desktop to start an e-mail; nothing in the three texts is escaped.
void SendMail(const std::string& address, const std::string& subject, const std::string& body);

}  // namespace tarnwick::app
