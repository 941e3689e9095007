// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/strand_text.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "points/strand/linid.h"
#include "points/strand/linom.h"
#include "tests/arith/power_product.h"
#include "tests/points/plain_strand.h"
#include "tests/points/shown.h"
#include "tests/points/strand_sets.h"
#include "tests/told_in_order.h"

namespace zep::tests {
namespace {

const std::vector<coordinates> triangle = {{0, 0}, {1, 0}, {0, 1}};

// What a strand is written as when these write its levels. They are told its progress and its marks
// too, as on a screen.
using level_text = void (*)(std::ostream& out, int level, const form_vectors& vectors);

void show_syzygies(std::ostream& out, int level, const form_vectors& vectors) {
  if (level > 0) show_vectors(out, vectors);
}

void put_syzygies(std::ostream& out, int level, const form_vectors& vectors) {
  if (level > 0) put_vectors(out, vectors);
}

void put_matrix_of_I_X(std::ostream& out, int level, const form_vectors& vectors) {
  text::put_matrix(out, level + 1, "I_X", vectors);
}

void show_relations(std::ostream& out, int /*level*/, const form_vectors& vectors) {
  show_vectors(out, vectors);
}

void put_relations(std::ostream& out, int /*level*/, const form_vectors& vectors) {
  put_vectors(out, vectors);
}

void put_matrix_of_w_R(std::ostream& out, int level, const form_vectors& vectors) {
  text::put_matrix(out, level, "w_R", vectors);
}

std::string strand_of_I_X(const strand_starts& start, level_text write, reporter& to,
                          std::ostringstream& out) {
  linid(start.min_Ix, start.X, start.A, to,
        [&](int level, const form_vectors& vectors) { write(out, level, vectors); });
  return out.str();
}

std::string written_of_I_X(const strand_starts& start, level_text write) {
  std::ostringstream out;
  return strand_of_I_X(start, write, nobody(), out);
}

// With the marks in their places.
std::string screen_of_I_X(const strand_starts& start, level_text write) {
  class marks : public silent {
   public:
    explicit marks(std::ostream& screen) : screen_(screen) {}
    void mark() override { screen_ << "."; }

   private:
    std::ostream& screen_;
  };
  std::ostringstream out;
  marks to(out);
  return strand_of_I_X(start, write, to, out);
}

enum class extent { all, relations };

std::string written_of_w_R(const presentation& w_R, level_text write, extent levels = extent::all) {
  std::ostringstream out;
  linom_by_pairs(w_R, nobody(), [&](int level, const form_vectors& vectors) {
    write(out, level, vectors);
    return levels == extent::all;
  });
  return out.str();
}

TEST(StrandText, ShowsTheSyzygiesOfATriangleInBrackets) {
  const ring_in_force ring(101, 2);
  // The generators are XY, Y^2 - YZ, X^2 - XZ.
  EXPECT_EQ(written_of_I_X(strand_starts(triangle), show_syzygies),
            "[ - Y + Z;\nX;\n 0 ]\n[ X - Z;\n 0;\n- Y ]\n");
}

TEST(StrandText, ShowsTheSyzygiesOfALevelBehindTheirNumber) {
  const ring_in_force ring(101, 2);
  const strand_starts start(triangle);
  std::ostringstream screen;
  told_in_order reporter(screen);
  EXPECT_EQ(strand_of_I_X(start, show_syzygies, reporter, screen),
            "I_X has 3 generators of degree 2\neliminating syzygies ...\n[2][1]\n"
            "2 syzygies in degree 1 found\n[ - Y + Z;\nX;\n 0 ]\n[ X - Z;\n 0;\n- Y ]\n\n" +
                line);
}

TEST(StrandText, ShowsTheRelationsBehindTheirNumber) {
  const ring_in_force ring(101, 2);
  const strand_starts start({{5, 7}});
  std::ostringstream screen;
  told_in_order reporter(screen);
  linom(start.w_R, start.X, start.A, reporter, [&](int level, const form_vectors& vectors) {
    show_relations(screen, level, vectors);
    return false;
  });
  EXPECT_EQ(screen.str(),
            "w_R has 1 generators in degree 1\n2 syzygies in degree 0 found\n"
            "[ X - 5Z ]\n[ Y - 7Z ]\n" +
                line);
}

TEST(StrandText, WritesMatricesUnderHeadings) {
  const ring_in_force ring(101, 2);
  const strand_starts start(triangle);
  const std::string text = written_of_I_X(start, put_matrix_of_I_X);
  EXPECT_TRUE(
      text.starts_with("\n1. matrix of linear resolution of I_X : \n1\n3\nXY\nY2-YZ\nX2-XZ\n"
                       "\n2. matrix of linear resolution of I_X : \n3\n2\n"));
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 17);
  const std::string module = written_of_w_R(start.w_R, put_matrix_of_w_R);
  EXPECT_TRUE(module.starts_with("\n1. matrix of linear resolution of w_R : \n2\n3\n"));
  EXPECT_EQ(std::count(module.begin(), module.end(), '\n'), 10);
  EXPECT_EQ(written_of_w_R(strand_starts({{5, 7}}).w_R, put_matrix_of_w_R),
            "\n1. matrix of linear resolution of w_R : \n1\n2\nX-5Z\nY-7Z\n"
            "\n2. matrix of linear resolution of w_R : \n2\n1\n-Y+7Z\nX-5Z\n");
}

TEST(StrandText, WritesVectorsWithoutHeadings) {
  const ring_in_force ring(101, 2);
  const std::string text = written_of_I_X(strand_starts(triangle), put_syzygies);
  EXPECT_TRUE(text.starts_with("3\n2\n"));
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 8);
  EXPECT_EQ(written_of_w_R(strand_starts({{5, 7}}).w_R, put_relations, extent::relations),
            "1\n2\nX-5Z\nY-7Z\n");
}

TEST(StrandText, CountsVectorsThatWereDroppedInTheirLengths) {
  {
    const ring_in_force ring(101, 2);
    EXPECT_TRUE(written_of_I_X(strand_starts({{5, 7}}), put_syzygies).starts_with("2\n1\n"));
  }
  const ring_in_force space(101, 3);
  const strand_starts start({{1, 2, 3},
                             {4, 5, 6},
                             {7, 8, 10},
                             {3, 1, 4},
                             {2, 7, 1},
                             {8, 2, 8},
                             {1, 8, 2},
                             {8, 4, 5},
                             {9, 0, 4},
                             {5, 2, 3}});
  const std::string text = written_of_I_X(start, put_syzygies);
  EXPECT_TRUE(text.starts_with("10\n15\n"));
  // 18 pairs made 15 syzygies: the vectors of the next level have length 18.
  EXPECT_NE(text.find("\n18\n6\n"), std::string::npos);
}

TEST(StrandText, OfNoVectorsButZerosIsEmpty) {
  const ring_in_force ring(101, 2);
  const polynomial zero(0);
  for (const form_vectors& vectors :
       {vectors_of({}, 0), vectors_of({{zero, zero}, {zero, zero}}, 2)}) {
    EXPECT_EQ(shown([&](std::ostream& out) { show_vectors(out, vectors); }), "");
    EXPECT_EQ(shown([&](std::ostream& out) { put_vectors(out, vectors); }), "");
    EXPECT_EQ(shown([&](std::ostream& out) { text::put_matrix(out, 3, "I_X", vectors); }), "");
  }
}

TEST(StrandText, LeavesZeroVectorsOut) {
  const ring_in_force ring(101, 2);
  const polynomial zero(0);
  const polynomial x(projective_variable(0));
  const form_vectors vectors = vectors_of({{zero, zero}, {x, zero}, {zero, zero}, {zero, x}}, 2);
  EXPECT_EQ(shown([&](std::ostream& out) { show_vectors(out, vectors); }),
            "[ X;\n 0 ]\n[  0;\nX ]\n");
  EXPECT_EQ(shown([&](std::ostream& out) { put_vectors(out, vectors); }), "2\n2\nX\n0\n0\nX\n");
  EXPECT_EQ(shown([&](std::ostream& out) { text::put_matrix(out, 3, "w_R", vectors); }),
            "\n3. matrix of linear resolution of w_R : \n2\n2\nX\n0\n0\nX\n");
}

TEST(StrandText, OfAModuleWithoutLinearRelationsIsEmpty) {
  const ring_in_force ring;
  const presentation w_R = strand_starts(points_of_frame()).w_R;
  EXPECT_EQ(written_of_w_R(w_R, show_relations, extent::relations), "");
  EXPECT_EQ(written_of_w_R(w_R, put_relations, extent::relations), "");
  EXPECT_EQ(written_of_w_R(w_R, put_matrix_of_w_R), "");
}

// Vectors between the marks.
std::string screen_form_of_I_X(const plain_strand& strand) {
  std::string text = strand.levels[0].marks;
  for (std::size_t k = 1; k < strand.levels.size(); ++k) {
    text += plain_screen_form(strand.levels[k]) + strand.levels[k].marks;
  }
  return text;
}

std::string file_form_of_I_X(const plain_strand& strand) {
  std::string text;
  for (std::size_t k = 1; k < strand.levels.size(); ++k) text += plain_file_form(strand.levels[k]);
  return text;
}

std::string matrices(const plain_strand& strand, const std::string& module) {
  std::string text;
  for (int k = 0; k < static_cast<int>(strand.levels.size()); ++k) {
    text += plain_matrix(strand.levels[k], k + 1, module);
  }
  return text;
}

TEST(StrandTextProperty, OfTheIdealIsThatOfThePlainStrand) {
  for_each_special_or_random_set([](const std::vector<coordinates>& points) {
    const strand_starts start(points);
    const plain_strand strand = plain_strand_of_I_X(start.min_Ix, start.X.H.alpha);
    ASSERT_EQ(screen_of_I_X(start, show_syzygies), screen_form_of_I_X(strand));
    ASSERT_EQ(written_of_I_X(start, put_syzygies), file_form_of_I_X(strand));
    ASSERT_EQ(written_of_I_X(start, put_matrix_of_I_X), matrices(strand, "I_X"));
  });
}

TEST(StrandTextProperty, OfTheCanonicalModuleIsThatOfThePlainStrand) {
  for_each_special_or_random_set([](const std::vector<coordinates>& points) {
    const presentation w_R = strand_starts(points).w_R;
    const plain_strand strand = plain_strand_of_w_R(w_R);
    ASSERT_EQ(written_of_w_R(w_R, put_matrix_of_w_R), matrices(strand, "w_R"));
    ASSERT_EQ(written_of_w_R(w_R, show_relations, extent::relations),
              plain_screen_form(strand.levels[0]));
    ASSERT_EQ(written_of_w_R(w_R, put_relations, extent::relations),
              plain_file_form(strand.levels[0]));
  });
}

}  // namespace
}  // namespace zep::tests
