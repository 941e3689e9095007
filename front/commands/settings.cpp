// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/commands/settings.h"

#include <algorithm>
#include <iostream>
#include <string>

#include "arith/Fp8.h"
#include "arith/ring_in_force.h"
#include "base/output.h"

namespace zep::front {

namespace {

constexpr int longest_names = 26;

bool is_prime(int n) {
  for (int d = 2; d * d <= n; ++d) {
    if (n % d == 0) return false;
  }
  return n > 1;
}

// Asks for the names of `needed` variables until there are enough. At most `longest_names` are read
// at a time, so a larger ring never gets its names.
std::string ask_names(session& z, long long needed) {
  while (true) {
    z.shared.prompt.ask("enter " + std::to_string(needed) + " identifiers for current ring : ");
    std::string names = z.typed.word(longest_names);
    if (static_cast<long long>(names.size()) >= needed) return names;
    z.shared.wrong.count();
    std::cerr << "not enough indentifiers\n";
  }
}

void show_range(const workspace& shared) {
  std::cout << "current range : [" << shared.range1 << "," << shared.range2 << "]\n";
}

// The upper border that is typed. What is no number costs the rest of its line.
int read_border(session& z) {
  try {
    return std::min(z.typed.integer(), Fp8::prime - 1);
  } catch (const malformed_number&) {
    z.typed.drop_rest_of_line();
    return z.shared.range1;
  }
}

void change_ring(const ring& R) {
  enforce(R);
  show_settings();
}

void set_order(session& z, term_order order) {
  ring R = current_ring();
  R.order = order;
  change_ring(R);
  z.shared.var.del_all(false);
}

}  // namespace

void show_settings() {
  const ring& R = current_ring();
  std::cout << "dimension         : " << R.n << "\n"
            << "ring              : F" << R.p << "[" << R.names.substr(0, R.n + 1) << "]\n"
            << "monomial ordering : "
            << (R.order == term_order::deglex ? "deg-lex\n" : "deg-rev-lex\n") << Line;
}

void hello() {
  std::cout << Line << "welcome to ZEP, for computing with points in projective space\n"
            << Line << "by the developers of ZEP; type help for the list of commands\n"
            << Line;
}

void characteristic(session& z) {
  const int p = z.typed.integer_or(0);
  if (p < 2 || p > largest_prime) {
    z.shared.wrong.complain("characteristic has to be a prime (2 - 251) !\n");
    return;
  }
  if (!is_prime(p)) std::cerr << "warning: " << p << " is not a prime\n";
  ring R = current_ring();
  R.p = p;
  z.shared.range2 = std::min(z.shared.range2, p - 1);
  std::cout << Line;
  change_ring(R);
  z.shared.var.del_all(false);
}

void set_dim(session& z) {
  const int n = z.typed.integer_or(0);
  if (n <= 1) {
    z.shared.wrong.complain("\ndimension has to be greater than one !!!\n");
    return;
  }
  z.shared.var.del_all(false);
  ring R = current_ring();
  const long long needed = static_cast<long long>(n) + 1;
  if (needed > std::ssize(R.names)) {
    std::cerr << "not enough indentifiers\n";
    R.names = ask_names(z, needed);
  }
  R.n = n;
  change_ring(R);
}

void identifiers(session& z) {
  ring R = current_ring();
  R.names = ask_names(z, proj);
  change_ring(R);
}

void range(session& z) {
  workspace& shared = z.shared;
  show_range(shared);
  int border = shared.range1;
  while (border <= shared.range1) {
    shared.prompt.ask("enter upper border : ");
    border = read_border(z);
    if (border <= shared.range1) {
      shared.wrong.complain("upper border must be greater than lower border !!!\n");
    }
  }
  shared.range2 = border;
  show_range(shared);
  std::cout << Line;
}

void deglex(session& z) { set_order(z, term_order::deglex); }

void degrevlex(session& z) { set_order(z, term_order::degrevlex); }

void root() {
  std::cout << "please use 'TORVEN' for computations over the field with n-th roots of unity\n"
            << Line;
}

void cyclotom() { std::cout << "please use 'TORVEN' for computing cyclotomic schemes\n" << Line; }

}  // namespace zep::front
