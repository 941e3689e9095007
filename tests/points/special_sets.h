// SPDX-License-Identifier: GPL-3.0-or-later
// Sets of points that have something special, and walks over many sets in many rings.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "tests/draw.h"
#include "tests/points/point_sets.h"

namespace zep::tests {

// At most s points (t, t^2, ..., t^m, 0, ..., 0): on a conic for m = 2, on a twisted cubic for
// m = 3, on a line for m = 1.
inline std::vector<coordinates> points_on_curve(int m, int s) {
  std::vector<coordinates> points;
  for (int t = 0; t < std::min(s, Fp8::prime); ++t) {
    coordinates point(dim, 0);
    int power = 1;
    for (int j = 0; j < m; ++j) {
      power = power * t % Fp8::prime;
      point[j] = power;
    }
    points.push_back(point);
  }
  return points;
}

// The points with coordinates below `width` in the first m places and 0 in the others.
inline std::vector<coordinates> points_of_grid(int m, int width) {
  std::vector<coordinates> points{coordinates(dim, 0)};
  for (int j = 0; j < m; ++j) {
    std::vector<coordinates> next;
    for (coordinates point : points) {
      for (int t = 0; t < std::min(width, Fp8::prime); ++t) {
        point[j] = t;
        next.push_back(point);
      }
    }
    points = next;
  }
  return points;
}

// The origin, the unit points and (1, ..., 1): n + 2 points, in general position unless p divides
// n - 1.
inline std::vector<coordinates> points_of_frame() {
  std::vector<coordinates> points{coordinates(dim, 0)};
  for (int j = 0; j < dim; ++j) {
    points.emplace_back(dim, 0);
    points.back()[j] = 1;
  }
  points.emplace_back(dim, 1);
  return points;
}

// Points in a hyperplane and one off it.
inline std::vector<coordinates> points_with_one_off_a_hyperplane(std::mt19937& random) {
  std::set<coordinates> inside;
  for (coordinates point : random_points(8, random)) {
    point.back() = 0;
    inside.insert(point);
  }
  std::vector<coordinates> points(inside.begin(), inside.end());
  points.insert(points.begin() + below(random, static_cast<int>(points.size())),
                coordinates(dim, 1));
  return points;
}

// Points on a line and others, which need not be on it.
inline std::vector<coordinates> points_on_a_line_and_others(std::mt19937& random) {
  std::set<coordinates> all;
  for (const coordinates& point : points_on_curve(1, 5)) all.insert(point);
  for (const coordinates& point : random_points(3, random)) all.insert(point);
  return {all.begin(), all.end()};
}

// One or two more points than there are monomials of degree up to 2.
inline std::vector<coordinates> points_beyond_quadrics(std::mt19937& random) {
  return random_points((dim + 2) * (dim + 1) / 2 + 1 + below(random, 2), random);
}

// The points in other affine coordinates, in which the leading ideal tells less; random ones, so
// that for small primes some may coincide.
inline std::vector<coordinates> moved(const std::vector<coordinates>& points,
                                      std::mt19937& random) {
  std::vector<coordinates> images(points.size());
  for (int j = 0; j < dim; ++j) {
    coordinates factors;
    for (int k = 0; k < dim; ++k) factors.push_back(below(random, Fp8::prime));
    for (std::size_t i = 0; i < points.size(); ++i) {
      images[i].push_back(
          std::inner_product(points[i].begin(), points[i].end(), factors.begin(), 1) % Fp8::prime);
    }
  }
  return images;
}

struct named_points {
  std::string name;
  std::vector<coordinates> points;
};

// Sets in the space in force, small enough for plain linear algebra.
inline std::vector<named_points> sets_of_points(std::mt19937& random) {
  return {
      {"one point", random_points(1, random)},
      {"few points", random_points(2 + below(random, dim + 2), random)},
      {"some points", random_points(dim + 3 + below(random, 10), random)},
      {"25 points", random_points(25, random)},
      {"a line", points_on_curve(1, 9 - dim)},
      {"a conic", points_on_curve(2, 7)},
      {"a normal curve", points_on_curve(dim, 2 * dim + 2)},
      {"a grid", points_of_grid(2, dim < 4 ? 4 : 7 - dim)},
      {"a cube", points_of_grid(std::min(dim, 4), 2)},
      {"a frame", points_of_frame()},
      {"one point off a hyperplane", points_with_one_off_a_hyperplane(random)},
      {"a line and others", points_on_a_line_and_others(random)},
      {"beyond quadrics", points_beyond_quadrics(random)},
  };
}

// Calls check(points) for sets of points in all rings that matter.
template <class Check>
void for_each_set(Check check) {
  std::mt19937 random(31);
  for (const int p : {2, 3, 101, 251}) {
    for (int n = 2; n <= 5; ++n) {
      for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
        const ring_in_force ring(p, n, order);
        for (const named_points& set : sets_of_points(random)) {
          SCOPED_TRACE(set.name + " of P^" + std::to_string(n) + " over F_" + std::to_string(p));
          check(set.points);
          if (::testing::Test::HasFailure()) return;
        }
      }
    }
  }
}

// Random sets of up to 40 points, in P^2 to P^5 over four fields.
struct random_sets {
  std::mt19937::result_type seed = 0;
  int rounds = 1;
  int most_points_of_P5 = 40;
};

// Calls check(points) for these, with both orders by turns.
template <class Check>
void for_each_random_set(const random_sets& sets, Check check) {
  std::mt19937 random(sets.seed);
  for (int round = 0; round < sets.rounds; ++round) {
    for (const int p : {2, 3, 101, 251}) {
      for (int n = 2; n <= 5; ++n) {
        const ring_in_force ring(p, n, round % 2 == 0 ? term_order::deglex : term_order::degrevlex);
        const std::vector<coordinates> points =
            random_points(1 + below(random, n == 5 ? sets.most_points_of_P5 : 40), random);
        SCOPED_TRACE(std::to_string(points.size()) + " points of P^" + std::to_string(n) +
                     " over F_" + std::to_string(p));
        check(points);
        if (::testing::Test::HasFailure()) return;
      }
    }
  }
}

// Calls use(points) for sets without meaning: with repeated points, or over rings Z/m that are no
// fields.
template <class Use>
void for_each_meaningless_set(Use use) {
  std::mt19937 random(37);
  for (const int m : {2, 4, 6, 9, 12, 101, 221, 250}) {
    for (int n = 2; n <= 4; ++n) {
      for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
        const ring_in_force ring(m, n, order);
        std::vector<coordinates> points = random_points(1 + below(random, 20), random);
        use(points);
        const int copies = 1 + below(random, 3);
        for (int i = 0; i < copies; ++i) {
          const coordinates again = points[below(random, static_cast<int>(points.size()))];
          points.insert(points.begin() + below(random, static_cast<int>(points.size())), again);
        }
        use(points);
        use(std::vector<coordinates>(points.size(), points.front()));
      }
    }
  }
}

}  // namespace zep::tests
