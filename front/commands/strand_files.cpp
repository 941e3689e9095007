#include "front/commands/strand_files.h"

#include <ostream>
#include <string>

#include "front/files/into_file.h"
#include "points/strand/linid.h"
#include "points/strand/linom.h"

namespace zep::front {

namespace {

using writer = void (*)(std::ostream& out, scheme& X);

void into(const std::string& name, existing_contents existing, writer write_to, scheme& X) {
  into_named_file(name, existing, [&](std::ostream& out) { write_to(out, X); });
}

void ask_and_write(session& z, int identifier, writer write_to) {
  scheme& X = z.var.object(identifier);
  into(ask_filename(z.typed), existing_contents::drop, write_to, X);
}

}  // namespace

void putlinid(session& z, int identifier) { ask_and_write(z, identifier, points::putlinid); }

void putlinom(session& z, int identifier) { ask_and_write(z, identifier, points::putlinom); }

void putlinres(session& z, int identifier) {
  scheme& X = z.var.object(identifier);
  const std::string name = ask_filename(z.typed);
  into(name, existing_contents::drop, points::putlinid, X);
  into(name, existing_contents::keep, points::putlinom, X);
}

void putlinsyz(session& z, int identifier) { ask_and_write(z, identifier, points::putlinsyz); }

void putlinomsyz(session& z, int identifier) { ask_and_write(z, identifier, points::putlinomsyz); }

void writelinid(session& z, int identifier) { ask_and_write(z, identifier, disp_linid); }

void writelinom(session& z, int identifier) { ask_and_write(z, identifier, disp_linom); }

void writelinres(session& z, int identifier) { ask_and_write(z, identifier, disp_linres); }

}  // namespace zep::front
