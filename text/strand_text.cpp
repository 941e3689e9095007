// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/strand_text.h"

#include <ostream>
#include <vector>

#include "base/interrupt.h"
#include "text/vector_text.h"

namespace zep::text {

namespace {

// Calls use(component) with a function that gives the components, for each vector that is not zero.
template <class Use>
void for_each_nonzero(const form_vectors& vectors, Use use) {
  for (int i = 0; i < vectors.count(); ++i) {
    heed_interrupt();
    if (vectors.position(i) < 0) continue;
    const std::vector<polynomial> components = vectors.components(i);
    use([&](int k) -> const polynomial& { return components[k]; });
  }
}

}  // namespace

void show_vectors(std::ostream& out, const form_vectors& vectors) {
  for_each_nonzero(vectors,
                   [&](const auto& component) { show_vector(out, vectors.rank(), component); });
}

void put_vectors(std::ostream& out, const form_vectors& vectors) {
  if (vectors.no_of_nonzero() == 0) return;
  out << vectors.rank() << "\n" << vectors.no_of_nonzero() << "\n";
  for_each_nonzero(vectors,
                   [&](const auto& component) { put_vector(out, vectors.rank(), component); });
}

void put_matrix(std::ostream& out, int number, std::string_view module,
                const form_vectors& vectors) {
  if (vectors.no_of_nonzero() == 0) return;
  out << "\n" << number << ". matrix of linear resolution of " << module << " : \n";
  put_vectors(out, vectors);
}

}  // namespace zep::text
