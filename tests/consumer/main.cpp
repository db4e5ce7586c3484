#include "calc/usart.h"
#include "common/number_text.h"

#include <iostream>

// Which SPBRG gives 9600 Bd at 20 MHz with BRGH set?
int main() {
  const auto rows = tarnwick::calc::usartRows(20, 9600);
  std::cout << "SPBRG = " << tarnwick::common::numberText(rows[1]->Spbrg) << '\n';
}
