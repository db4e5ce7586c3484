#include "ui/desktop.h"

#include "ui/text.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QUrl>

namespace tarnwick::ui {

void copyToClipboard(std::string_view text) {
  QClipboard* clipboard = QGuiApplication::clipboard();
  clipboard->clear();
  clipboard->setText(toQt(text));
}

std::string clipboardText() {
  return fromQt(QGuiApplication::clipboard()->text());
}

void openAddress(std::string_view address) {
  QDesktopServices::openUrl(QUrl(toQt(address)));
}

}  // namespace tarnwick::ui
