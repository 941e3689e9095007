#include "front/commands/settings.h"

#include <algorithm>
#include <iostream>
#include <string>

#include "arith/Fp8.h"
#include "arith/ordering.h"
#include "arith/ring.h"
#include "base/output.h"
#include "base/reporter.h"
#include "front/session/error.h"
#include "front/terminal/prompt.h"

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
std::string ask_names(input& in, long long needed) {
  while (true) {
    prompt("enter " + std::to_string(needed) + " identifiers for current ring : ");
    std::string names = in.word(longest_names);
    if (static_cast<long long>(names.size()) >= needed) return names;
    count_error();
    std::cerr << "not enough indentifiers\n";
  }
}

void show_range(const session& z) {
  std::cout << "current range : [" << z.range1 << "," << z.range2 << "]\n";
}

// The upper border that is typed. What is no number costs the rest of its line.
int read_border(session& z) {
  try {
    return std::min(z.typed.integer(), Fp8::prime - 1);
  } catch (const malformed_number&) {
    z.typed.drop_rest_of_line();
    return z.range1;
  }
}

}  // namespace

void set_defaults(session& z) {
  set_dimension(3);
  varstring = "XYZTabcdefghijklmnopqrstuvw";
  verbose = 1;
  set_line_length(80);
  Fp8::prime = 101;
  z.range1 = 0;
  z.range2 = std::min(default_range2, Fp8::prime - 1);
  Fp8::init();
  use_degrevlex();
}

void show_settings() {
  std::cout << "dimension         : " << dim << "\n"
            << "ring              : F" << Fp8::prime << "["
            << varstring.substr(0, static_cast<std::size_t>(proj)) << "]\n"
            << "monomial ordering : " << (monom_ordering == 0 ? "deg-lex\n" : "deg-rev-lex\n")
            << Line;
}

void hello() {
  std::cout << Line << "welcome to ZEP, for computing with points in projective space\n"
            << Line << "by the developers of ZEP; type help for the list of commands\n"
            << Line;
}

void characteristic(session& z) {
  const int n = z.typed.integer_or(0);
  if (n < 2 || n > largest_prime) {
    complain("characteristic has to be a prime (2 - 251) !\n");
    return;
  }
  if (!is_prime(n)) std::cerr << "warning: " << n << " is not a prime\n";
  Fp8::prime = n;
  Fp8::init();
  z.range2 = std::min(z.range2, n - 1);
  std::cout << Line;
  show_settings();
  z.var.del_all(false);
}

void set_dim(session& z) {
  const int n = z.typed.integer_or(0);
  if (n <= 1) {
    complain("\ndimension has to be greater than one !!!\n");
    return;
  }
  z.var.del_all(false);
  const long long needed = static_cast<long long>(n) + 1;
  if (needed > static_cast<long long>(varstring.size())) {
    std::cerr << "not enough indentifiers\n";
    varstring = ask_names(z.typed, needed);
  }
  set_dimension(n);
  show_settings();
}

void identifiers(session& z) {
  varstring = ask_names(z.typed, proj);
  show_settings();
}

void range(session& z) {
  show_range(z);
  int border = z.range1;
  while (border <= z.range1) {
    prompt("enter upper border : ");
    border = read_border(z);
    if (border <= z.range1) {
      complain("upper border must be greater than lower border !!!\n");
    }
  }
  z.range2 = border;
  show_range(z);
  std::cout << Line;
}

void deglex(session& z) {
  use_deglex();
  show_settings();
  z.var.del_all(false);
}

void degrevlex(session& z) {
  use_degrevlex();
  show_settings();
  z.var.del_all(false);
}

void root() {
  std::cout << "please use 'TORVEN' for computations over the field with n-th roots of unity\n"
            << Line;
}

void cyclotom() { std::cout << "please use 'TORVEN' for computing cyclotomic schemes\n" << Line; }

}  // namespace zep::front
