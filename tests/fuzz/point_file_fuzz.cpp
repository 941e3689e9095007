// SPDX-License-Identifier: GPL-3.0-or-later
// Point files: any bytes are what `scheme` reads. The last byte is none of them, but chooses the
// ring.
//
// What was read and is written by `putscheme` must be read again as the same points.
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include "arith/ring_in_force.h"
#include "front/parser.h"
#include "front/session/session.h"
#include "tests/fuzz/sandbox.h"

namespace {

// There are fields with few elements, where points are equal, the largest, and one that is no
// field.
struct space {
  int characteristic;
  int dimension;
};
constexpr std::array<space, 5> spaces = {{{2, 2}, {251, 2}, {101, 3}, {4, 3}, {31, 7}}};

// The digits 0 to 4 choose the spaces in order.
zep::arith::ring chosen_by(std::uint8_t byte) {
  const space& chosen = spaces[(byte + spaces.size() - '0' % spaces.size()) % spaces.size()];
  return {.p = chosen.characteristic, .n = chosen.dimension};
}

void expect_equal_copy(zep::front::identifier_table& identifiers) {
  const zep::front::identifier* const original = identifiers.find("A");
  if (original == nullptr) return;
  const zep::front::identifier* const copy = identifiers.find("B");
  if (copy == nullptr) std::abort();
  if (!(original->object->P() == copy->object->P())) std::abort();
}

void read_write_and_read(const zep::arith::ring& R) {
  std::istringstream keyboard("scheme A points\n putscheme A copy\n scheme B copy\n A\n");
  zep::front::workspace shared;
  const zep::arith::ring_in_force in_force(R);
  zep::front::session z(shared, keyboard);
  zep::front::parser(z);
  expect_equal_copy(shared.var);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::uint8_t* const last = data + size - 1;
  zep::tests::start_afresh();
  zep::tests::put_file("points", std::string(data, last));
  zep::tests::in_sandbox([&] { read_write_and_read(chosen_by(*last)); });
  return 0;
}
