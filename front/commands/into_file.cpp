// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/commands/into_file.h"

namespace zep::front {

std::string ask_filename(session& z) {
  z.shared.prompt.ask_for_filename();
  return z.typed.word();
}

}  // namespace zep::front
