// A window with the launcher's menu commands and captions, and no program behind them; with an
// argument an empty one.

#include "measure.h"

#include <QApplication>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

void fill(QWidget& window) {
  window.setWindowTitle(QStringLiteral("Twin"));
  auto* client = new QWidget(&window);
  client->setFixedSize(313, 241);
  int top = 13;
  for (const char* caption :
       {"Timer calc", "Timer helper", "USART calc", "EUSART calc", "SERIN/OUT2", "PWM calc",
        "A/D Calc", "Comparator Vref", "LCD custom character"}) {
    (new QPushButton(QLatin1String(caption), client))->setGeometry(180, top, 121, 23);
    top += 24;
  }
  auto* menu = new QMenuBar(&window);
  for (const char* caption : {"Exit", "Website", "Contact us", "About"})
    menu->addAction(QLatin1String(caption));
  auto* layout = new QVBoxLayout(&window);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setMenuBar(menu);
  layout->addWidget(client);
}

}  // namespace

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  tarnwick::bench::reportWhenPainted(1);
  QWidget window;
  window.resize(313, 260);
  if (argc == 1) fill(window);
  window.show();
  return QApplication::exec();
}
