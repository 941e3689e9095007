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

#include "arith/Fp8.h"
#include "arith/ring.h"
#include "front/parser.h"
#include "front/session/session.h"
#include "tests/fuzz/sandbox.h"

namespace {

struct ring {
  int characteristic;
  int dimension;

  void put_in_force() const {
    zep::tests::Fp8::prime = characteristic;
    zep::tests::Fp8::init();
    zep::tests::set_dimension(dimension);
  }
};

// There are fields with few elements, where points are equal, the largest, and one that is no
// field.
constexpr std::array<ring, 5> rings = {{{2, 2}, {251, 2}, {101, 3}, {4, 3}, {31, 7}}};

// The digits 0 to 4 choose the rings in order.
const ring& chosen_by(std::uint8_t byte) {
  return rings[(byte + rings.size() - '0' % rings.size()) % rings.size()];
}

void expect_equal_copy(const zep::tests::session& z) {
  const int original = z.var.find("A");
  if (original == zep::tests::unknown_identifier) return;
  const int copy = z.var.find("B");
  if (copy == zep::tests::unknown_identifier) std::abort();
  if (!(z.var.object(original).P == z.var.object(copy).P)) std::abort();
}

void read_write_and_read() {
  std::istringstream keyboard("scheme A points\n putscheme A copy\n scheme B copy\n A\n");
  zep::tests::session z(keyboard);
  zep::tests::parser(z);
  expect_equal_copy(z);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::uint8_t* const last = data + size - 1;
  zep::tests::start_afresh();
  chosen_by(*last).put_in_force();
  zep::tests::put_file("points", std::string(data, last));
  zep::tests::in_sandbox(read_write_and_read);
  return 0;
}
