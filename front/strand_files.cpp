#include "front/strand_files.h"

#include <ostream>
#include <string>

#include "front/into_file.h"
#include "scheme/linid.h"
#include "scheme/linom.h"

namespace zep {

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

void putlinid(session& z, int identifier) { ask_and_write(z, identifier, putlinid); }

void putlinom(session& z, int identifier) { ask_and_write(z, identifier, putlinom); }

void putlinres(session& z, int identifier) {
  scheme& X = z.var.object(identifier);
  const std::string name = ask_filename(z.typed);
  into(name, existing_contents::drop, putlinid, X);
  into(name, existing_contents::keep, putlinom, X);
}

void putlinsyz(session& z, int identifier) { ask_and_write(z, identifier, putlinsyz); }

void putlinomsyz(session& z, int identifier) { ask_and_write(z, identifier, putlinomsyz); }

void writelinid(session& z, int identifier) { ask_and_write(z, identifier, disp_linid); }

void writelinom(session& z, int identifier) { ask_and_write(z, identifier, disp_linom); }

void writelinres(session& z, int identifier) { ask_and_write(z, identifier, disp_linres); }

}  // namespace zep
