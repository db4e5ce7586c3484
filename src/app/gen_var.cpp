#include "app/gen_var.h"

#include "ui/desktop.h"

namespace tarnwick::app {

void OpenWebSite(const std::string& address) {
  ui::openAddress(address);
}

void SendMail(const std::string& address, const std::string& subject, const std::string& body) {
  ui::openAddress("mailto:" + address + "?subject=" + subject + "&body=" + body);
}

}  // namespace tarnwick::app
