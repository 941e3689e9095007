// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/commands/result_files.h"

#include <iostream>

#include "base/output.h"
#include "front/commands/into_file.h"
#include "text/record.h"
#include "text/result_files.h"

namespace zep::front {

namespace {

// Writes a result that is computed when it does not exist.
template <class Make, class Write>
void put(const invocation& todo, bool exists, Make make, Write write_to) {
  into_file(todo.z, [&](std::ostream& out) {
    if (exists) std::cout << Line;
    write_to(out, make());
  });
}

}  // namespace

void putscheme(const invocation& todo) {
  const auto write_to = [&](std::ostream& out) { text::put_points(out, todo.X().P()); };
  if (into_file(todo.z, write_to)) std::cout << Line;
}

void putbeta(const invocation& todo) {
  scheme& X = todo.X();
  put(
      todo, X.known().beta_matrix != nullptr,
      [&]() -> const matrix& { return X.beta_matrix().beta; },
      [](std::ostream& out, const matrix& beta) { text::put_matrix(out, beta); });
}

void putsep(const invocation& todo) {
  scheme& X = todo.X();
  const auto make = [&]() -> const order_ideal& {
    X.sep();
    return X.bu_mo();
  };
  put(todo, X.known().sep != nullptr, make, text::put_separators);
}

void putGroebner(const invocation& todo) {
  scheme& X = todo.X();
  put(
      todo, X.known().bu_mo != nullptr, [&]() -> const order_ideal& { return X.bu_mo(); },
      text::put_groebner);
}

void putmin(const invocation& todo) {
  scheme& X = todo.X();
  put(
      todo, X.known().min_Ix != nullptr, [&]() -> const ideal& { return X.min_Ix(); },
      text::put_generators);
}

void putA_d(const invocation& todo) {
  scheme& X = todo.X();
  put(
      todo, has_generators(X.known().omega), [&]() -> const presentation& { return X.omega(); },
      text::put_presentation);
}

void write(const invocation& todo) {
  const auto write_to = [&](std::ostream& out) { text::display(out, std::cout, todo.X()); };
  if (into_file(todo.z, write_to)) std::cout << Line;
}

}  // namespace zep::front
