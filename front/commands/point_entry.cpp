#include "front/commands/point_entry.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <utility>
#include <vector>

#include "arith/ring.h"
#include "base/interrupt.h"
#include "base/output.h"
#include "front/files/files.h"
#include "front/session/error.h"
#include "front/terminal/prompt.h"
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

  std::unique_ptr<scheme> make_scheme() const {
    auto X = std::make_unique<scheme>(size_);
    if (size_ > 0) std::copy(coordinates_.begin(), coordinates_.end(), X->P[0]);
    return X;
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

void finish(reservation& identifier, const point_buffer& points) {
  auto X = points.make_scheme();
  warn_of_equal_points(X->P);
  identifier.fill(std::move(X));
}

// Fills the record from the file, or reports why that can't be done.
void read_scheme(std::istream& file, reservation& identifier) {
  input in(file);
  try {
    if (in.integer() != proj) {
      error(error_code::different_dimensions);
      return;
    }
    const int n = in.integer();
    if (n < 0) throw malformed_number();
    point_buffer points;
    for (int i = 0; i < n; ++i) {
      heed_interrupt();
      points.read_point(in, "first coordinate as '1'\n", [] {});
    }
    finish(identifier, points);
  } catch (const malformed_number&) {
    complain("malformed point file\n");
  } catch (const end_of_input&) {
    complain("malformed point file\n");
  }
}

}  // namespace

void get_scheme(session& z) {
  auto identifier = reservation::read(z.typed, z.var);
  if (!identifier) return;
  prompt("enter number of points : ");
  try {
    const int n = z.typed.integer();
    point_buffer points;
    for (int i = 0; i < n; ++i) {
      // One character behind the first coordinate is dropped, so that x0 : x1 can be typed.
      points.read_point(z.typed, "first coordinate treated as '1'\n",
                        [&] { z.typed.skip_character(); });
      points.echo_last_point();
    }
    finish(*identifier, points);
  } catch (const malformed_number&) {
    complain("malformed number\n");
  } catch (const end_of_input&) {
    complain("unexpected end of input\n");
    throw;
  }
}

void create(session& z) {
  auto identifier = reservation::read(z.typed, z.var);
  if (!identifier) return;
  source_file file(ask_filename(z.typed));
  if (!file.is_open()) {
    error(error_code::cannot_open_file);
    return;
  }
  read_scheme(file.stream(), *identifier);
  std::cout << Line;
}

}  // namespace zep::front
