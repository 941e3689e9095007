// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/commands/strand_files.h"

#include <ostream>
#include <string>

#include "front/commands/into_file.h"
#include "text/strand_text.h"
#include "text/strands.h"

namespace zep::front {

namespace {

void write_strand_of_I_X(std::ostream& out, scheme& X) {
  const auto write_level = [&](int level, const form_vectors& vectors) {
    text::put_matrix(out, level + 1, "I_X", vectors);
  };
  X.linid(write_level, scheme::numbers::count);
}

void write_strand_of_w_R(std::ostream& out, scheme& X) {
  const auto write_level = [&](int level, const form_vectors& vectors) {
    text::put_matrix(out, level, "w_R", vectors);
    return true;
  };
  X.linom(write_level, scheme::numbers::count);
}

}  // namespace

void putlinid(const invocation& todo) {
  into_file(todo.z, [&](std::ostream& out) { write_strand_of_I_X(out, todo.X()); });
}

void putlinom(const invocation& todo) {
  into_file(todo.z, [&](std::ostream& out) { write_strand_of_w_R(out, todo.X()); });
}

void putlinres(const invocation& todo) {
  complaints& wrong = todo.z.shared.wrong;
  const std::string name = ask_filename(todo.z);
  into_named_file(wrong, name, existing_contents::drop,
                  [&](std::ostream& out) { write_strand_of_I_X(out, todo.X()); });
  into_named_file(wrong, name, existing_contents::keep,
                  [&](std::ostream& out) { write_strand_of_w_R(out, todo.X()); });
}

void putlinsyz(const invocation& todo) {
  into_file(todo.z, [&](std::ostream& out) {
    const auto write_syzygies = [&](int level, const form_vectors& vectors) {
      if (level > 0) text::put_vectors(out, vectors);
    };
    todo.X().linid(write_syzygies, scheme::numbers::stay);
  });
}

void putlinomsyz(const invocation& todo) {
  into_file(todo.z, [&](std::ostream& out) {
    const auto write_relations = [&](int /*level*/, const form_vectors& vectors) {
      text::put_vectors(out, vectors);
      return false;
    };
    todo.X().linom(write_relations, scheme::numbers::stay);
  });
}

void writelinid(const invocation& todo) {
  into_file(todo.z, [&](std::ostream& out) { text::disp_linid(out, todo.X().known()); });
}

void writelinom(const invocation& todo) {
  into_file(todo.z, [&](std::ostream& out) { text::disp_linom(out, todo.X().known()); });
}

void writelinres(const invocation& todo) {
  into_file(todo.z, [&](std::ostream& out) { text::disp_linres(out, todo.X().known()); });
}

}  // namespace zep::front
