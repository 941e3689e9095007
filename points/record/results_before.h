// Taking back what an interrupted command has computed.
#pragma once

#include <array>
#include <vector>

#include "points/record/scheme.h"

namespace zep::points {

// What a scheme has at a moment. A command may run several computations, each of which stores its
// results when it has succeeded; with this, a later one can end early and the scheme is again as it
// was, although nothing large was copied: results are only ever added, so those that were there
// still are, and the others are released. Of what may be overwritten there is a copy.
//
//     const results_before before(X);
//     try {
//       the command
//     } catch (const interrupted&) {
//       before.restore(X);
//     }
class results_before {
 public:
  explicit results_before(const scheme& X);

  // Brings X, the same scheme some computations later, back to that moment. The points and the ring
  // in force are those of then. The output column is brought back as well.
  void restore(scheme& X) const;

 private:
  int column_;
  bool bu_mo_;
  bool beta_matrix_;
  bool Can_Lf_;
  bool min_Ix_;
  bool socle_;
  bool omega_;
  int sep_;
  int is_CB_;
  int is_ar_Go_;
  std::array<std::vector<int>, 2> linres_;
  int linid_;
  int linom_;
};

}  // namespace zep::points
