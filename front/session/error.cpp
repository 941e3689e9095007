// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/session/error.h"

#include <iostream>

namespace zep::front {

void complaints::complain(std::string_view text) {
  count();
  std::cout << text;
}

void complaints::error(error_code code) {
  count();
  switch (code) {
    case error_code::cannot_open_file:
      std::cout << "can't open file\n";
      [[fallthrough]];
    case error_code::different_dimensions:
      std::cout << "can't read scheme because of different dimensions\n";
      [[fallthrough]];
    case error_code::unknown_word:
      std::cout << "command or indentifier unknown\n";
      break;
    case error_code::needs_identifier:
      std::cout << "command needs indentifier\n";
      break;
    case error_code::not_alphanumeric:
      std::cout << "indentifiers have to consist only of alnums\n";
      break;
    case error_code::unknown_identifier:
      std::cout << "indentifier unknown\n";
      break;
    case error_code::wrong_type:
      std::cout << "indentifier of wrong typ\n";
      break;
    case error_code::memory_exceeded:
      std::cout << "identifier memory exceeded\n";
      break;
    case error_code::already_exists:
      std::cout << "indentifier already exists\n";
      break;
  }
}

}  // namespace zep::front
