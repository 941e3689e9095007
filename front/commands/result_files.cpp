#include "front/commands/result_files.h"

#include <iostream>

#include "arith/ring.h"
#include "base/interrupt.h"
#include "base/output.h"
#include "front/files/into_file.h"
#include "points/ideal/minimal_generators.h"
#include "points/module/canonical_module.h"
#include "points/walk/beta_matrix.h"
#include "points/walk/buchberger_moeller.h"
#include "points/walk/separators.h"
#include "text/record.h"
#include "text/vector_text.h"

namespace zep::front {

namespace {

// Asks for a name and hands the open file to `write_to`. True if it could be opened.
template <class Write>
bool into_file(session& z, Write write_to) {
  return into_named_file(ask_filename(z.typed), existing_contents::drop, write_to);
}

// The same, for a result that is computed when it does not exist.
template <class Compute, class Write>
void into_file(session& z, bool exists, Compute compute, Write write_to) {
  into_file(z, [&](std::ostream& out) {
    if (exists) {
      std::cout << Line;
    } else {
      compute();
    }
    write_to(out);
  });
}

// A row of n polynomials, made one by one.
template <class Generator>
void write_polynomials(std::ostream& out, int n, Generator generator) {
  out << 1 << "\n" << n << "\n";
  put_vector(out, n, generator);
}

void write_points(std::ostream& out, const scheme& X) {
  out << proj << "\n" << X.s << "\n";
  for (int i = 0; i < X.s; ++i) {
    heed_interrupt();
    out << 1 << "\n";
    for (const Fp8 x : X.P.row(i)) out << x << "\n";
  }
}

void write_matrix(std::ostream& out, const matrix& m) {
  out << m.cols() << "\n" << m.rows() << "\n";
  for (int i = 0; i < m.rows(); ++i) {
    heed_interrupt();
    for (const Fp8 x : m.row(i)) out << x << "\n";
  }
}

// The presentation of the canonical module, column by column.
void write_presentation(std::ostream& out, const scheme& X) {
  out << no_of_pr(X) << "\n" << X.A_d_cols << "\n";
  for (int j = 0; j < X.A_d_cols; ++j) {
    put_vector(out, no_of_pr(X), [&](int i) -> const polynomial& { return entry_of_A_d(X, i, j); });
  }
}

}  // namespace

void putscheme(session& z, int identifier) {
  const scheme& X = z.var.object(identifier);
  if (into_file(z, [&](std::ostream& out) { write_points(out, X); })) std::cout << Line;
}

void putbeta(session& z, int identifier) {
  scheme& X = z.var.object(identifier);
  into_file(
      z, X.beta_matrix.has_value(), [&] { beta_matrix(X); },
      [&](std::ostream& out) { write_matrix(out, *X.beta_matrix); });
}

void putsep(session& z, int identifier) {
  scheme& X = z.var.object(identifier);
  into_file(
      z, X.sep != 0, [&] { need_sep(X); },
      [&](std::ostream& out) {
        write_polynomials(out, X.s, [&](int i) { return separator_of(X, i); });
      });
}

void putGroebner(session& z, int identifier) {
  scheme& X = z.var.object(identifier);
  into_file(
      z, X.has_bu_mo, [&] { bu_mo(X); },
      [&](std::ostream& out) {
        write_polynomials(out, X.Ix->no_of_gens(), [&](int g) { return groebner_element(X, g); });
      });
}

void putmin(session& z, int identifier) {
  scheme& X = z.var.object(identifier);
  into_file(
      z, X.min_Ix.has_value(), [&] { min_Ix(X); },
      [&](std::ostream& out) {
        const ideal& I = *X.min_Ix;
        write_polynomials(out, I.no_of_gens(),
                          [&](int m) -> const polynomial& { return I.gen[m]; });
      });
}

void putA_d(session& z, int identifier) {
  scheme& X = z.var.object(identifier);
  into_file(
      z, no_of_pr(X) != 0, [&] { omega(X); },
      [&](std::ostream& out) { write_presentation(out, X); });
}

void write(session& z, int identifier) {
  scheme& X = z.var.object(identifier);
  if (into_file(z, [&](std::ostream& out) { out << X; })) std::cout << Line;
}

}  // namespace zep::front
