// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/commands/point_entry.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <utility>
#include <vector>

#include "arith/ring.h"
#include "base/interrupt.h"
#include "base/output.h"
#include "front/commands/into_file.h"
#include "front/files/files.h"
#include "linalg/equal_rows.h"

namespace zep::front {

namespace {

// The points read so far, coordinate after coordinate: memory follows what was read, not what was
// announced.
class point_buffer {
 public:
  // Reads one point. `between` runs behind its first coordinate, which is replaced by 1 where it is
  // 0, with a complaint that ends in `treatment`.
  template <class Between>
  void read_point(input& in, const char* treatment, Between between) {
    Fp8 x0 = in.coefficient();
    if (x0 == 0) {
      std::cerr << "first coordinate is expected to be different from zero\n" << treatment;
      x0 = 1;
    }
    between();
    for (int j = 0; j < dim; ++j) coordinates_.push_back(in.coefficient() / x0);
    ++size_;
  }

  void echo_last_point() const {
    std::cout << size_ << ". point entered : <1";
    for (auto x = coordinates_.end() - dim; x != coordinates_.end(); ++x) std::cout << ":" << *x;
    std::cout << ">\n";
  }

  // The points as rows.
  matrix rows() const {
    matrix P(dim, size_);
    auto from = coordinates_.begin();
    for (int i = 0; i < size_; ++i, from += dim) std::copy_n(from, dim, P[i].begin());
    return P;
  }

 private:
  std::vector<Fp8> coordinates_;
  int size_ = 0;
};

void warn_of_equal_points(const matrix& P) {
  if (const auto pair = equal_rows(P).first_pair()) {
    std::cerr << "warning: points " << pair->first + 1 << " and " << pair->second + 1
              << " are equal\n";
  }
}

void finish(workspace& shared, reservation& identifier, const point_buffer& points) {
  matrix P = points.rows();
  warn_of_equal_points(P);
  identifier.fill(std::make_unique<scheme>(std::move(P), shared.report));
}

// Fills the identifier from the file, or complains why that can't be done.
void read_scheme(workspace& shared, std::istream& file, reservation& identifier) {
  input in(file);
  try {
    if (in.integer() != proj) {
      shared.wrong.error(error_code::different_dimensions);
      return;
    }
    const int n = in.integer();
    if (n < 0) throw malformed_number();
    point_buffer points;
    for (int i = 0; i < n; ++i) {
      heed_interrupt();
      points.read_point(in, "first coordinate as '1'\n", [] {});
    }
    finish(shared, identifier, points);
  } catch (const malformed_number&) {
    shared.wrong.complain("malformed point file\n");
  } catch (const end_of_input&) {
    shared.wrong.complain("malformed point file\n");
  }
}

}  // namespace

void get_scheme(session& z) {
  auto identifier = reservation::read(z.typed, z.shared.var, z.shared.wrong);
  if (!identifier) return;
  z.shared.prompt.ask("enter number of points : ");
  try {
    const int n = z.typed.integer();
    point_buffer points;
    for (int i = 0; i < n; ++i) {
      // One character behind the first coordinate is dropped, so that x0 : x1 can be typed.
      points.read_point(z.typed, "first coordinate treated as '1'\n",
                        [&] { z.typed.skip_character(); });
      points.echo_last_point();
    }
    finish(z.shared, *identifier, points);
  } catch (const malformed_number&) {
    z.shared.wrong.complain("malformed number\n");
  } catch (const end_of_input&) {
    z.shared.wrong.complain("unexpected end of input\n");
    throw;
  }
}

void create(session& z) {
  auto identifier = reservation::read(z.typed, z.shared.var, z.shared.wrong);
  if (!identifier) return;
  source_file file(ask_filename(z));
  if (!file.is_open()) {
    z.shared.wrong.error(error_code::cannot_open_file);
    return;
  }
  read_scheme(z.shared, file.stream(), *identifier);
  std::cout << Line;
}

}  // namespace zep::front
