#include "app/fAbout.h"

#include "common/number_text.h"
#include "common/product.h"
#include "ui/describe.h"
#include "ui/layout.h"
#include "ui/text.h"

#include <QFrame>
#include <QIcon>

#include <array>
#include <string>

namespace tarnwick::app {
namespace {

namespace product = common::product;

std::string versionLine() {
  using common::wholeText;
  return std::string(product::title) + ", WIP Version " + wholeText(product::major) + "." +
         wholeText(product::minor) + "." + wholeText(product::revision);
}

QFrame* separator(QWidget* parent, int index) {
  auto* line = new QFrame(parent);
  line->setObjectName(ui::toQt(ui::indexed("Line1", index)));
  line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
  return line;
}

}  // namespace

fAbout::fAbout() : Window("fAbout", "About " + std::string(product::title)) {
  auto* picIcon = ui::label(this, "picIcon", "");
  picIcon->setPixmap(windowIcon().pixmap(48));
  picIcon->setAccessibleName(ui::toQt(product::name));

  auto* lblTitle = ui::label(this, "lblTitle", versionLine());
  QFont bold = lblTitle->font();
  bold.setBold(true);
  lblTitle->setFont(bold);

  auto* lblCopyright = ui::label(this, "lblCopyright", product::notice);
  auto* lblDescription = ui::label(this, "lblDescription",
                                   "We want to hear your suggestions and comments to\r\n"
                                   "improve this software.\r\n"
                                   "\r\n"
                                   "Together, let's make it better!");
  auto* lblDisclaimer = ui::label(this, "lblDisclaimer",
                                  "Warning: This software have been tested on most\r\n"
                                  "popular PIC model.  If you discover any problem,\r\n"
                                  "please contact us.");
  auto* cmdOK = ui::button(this, "cmdOK", "OK");
  ui::describe(*this, std::to_array<ui::Description>({{"cmdOK", "Closes this window"}}));
  cmdOK->setFocus();
  closeBy(Qt::Key_Escape);
  connect(cmdOK, &QPushButton::clicked, this, &QWidget::close);

  auto* window = ui::grid(this);
  window->setHorizontalSpacing(2 * window->horizontalSpacing());
  window->addWidget(picIcon, 0, 0, 3, 1, Qt::AlignTop);
  window->addWidget(lblTitle, 0, 1, 1, 2);
  window->addWidget(lblDescription, 1, 1, 1, 2);
  window->addWidget(separator(this, 0), 2, 1, 1, 2);
  window->addWidget(lblCopyright, 3, 1, 1, 2);
  window->addWidget(separator(this, 1), 4, 1, 1, 2);
  window->addWidget(lblDisclaimer, 5, 1);
  window->addWidget(cmdOK, 5, 2, Qt::AlignBottom | Qt::AlignRight);
  ui::fixToContent(this);
}

}  // namespace tarnwick::app
