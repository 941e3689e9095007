// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/record.h"

#include <gtest/gtest.h>

#include "tests/points/everything.h"
#include "tests/points/point_sets.h"
#include "tests/points/shown.h"
#include "text/canonical_module.h"
#include "text/generators.h"
#include "text/invariants.h"
#include "text/points.h"
#include "text/strands.h"

namespace zep::tests {
namespace {

const std::vector<coordinates> triangle = {{0, 0}, {1, 0}, {0, 1}};

// On a stream of its own, and on the screen.
struct record {
  explicit record(const scheme& X) {
    std::ostringstream stream;
    std::ostringstream screen_stream;
    display(stream, screen_stream, X);
    text = stream.str();
    screen = screen_stream.str();
  }

  std::string text;
  std::string screen;
};

TEST(Record, GrowsWithTheResults) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  const std::string points = "scheme consists of 3 points:\n<1:0:0><1:1:0><1:0:1>\n" + line;
  EXPECT_EQ(record(X).text, points);
  EXPECT_EQ(record(X).screen, "");
  const std::string invariants = "H(n) = 1 3 \n" + line + "delta H(n) = 1 2 \n" + line +
                                 "sigma = 0\n" + line + "delta = 2\n" + line + "alpha = 2\n" + line;
  X.bu_mo();
  EXPECT_EQ(record(X).text, points + invariants);
  EXPECT_EQ(record(X).screen, "order ideal of X : \n1, Y, X\n" + line);
  X.sep();
  const std::string verdicts = "scheme has Cayley-Bacharach property\n" + line +
                               "scheme is NOT arithmetically Gorenstein\n" + line;
  EXPECT_EQ(record(X).text, points + invariants + verdicts);
  const std::string socle_text = shown(disp_socle, X.socle());
  EXPECT_EQ(record(X).text, points + invariants + verdicts + socle_text);
  const std::string degrees = shown(deg_min, X.min_Ix());
  EXPECT_EQ(record(X).text, points + invariants + verdicts + degrees + socle_text);
  EXPECT_EQ(record(X).screen, "order ideal of X : \n1, Y, X\n" + line);
}

TEST(Record, HasTheOrderIdealInItsPlaceOnTheScreen) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  X.bu_mo();
  std::ostringstream screen;
  display(screen, screen, X);
  EXPECT_NE(
      screen.str().find("<1:0:1>\n" + line + "order ideal of X : \n1, Y, X\n" + line + "H(n) = "),
      std::string::npos)
      << screen.str();
}

// What the separators have left open may have been known before, or been found by the socle.
TEST(Record, ShowsTheVerdictsThatAreKnownOnceTheSeparatorsAre) {
  const ring_in_force ring(101, 2);
  scheme X = make_set({{0, 0}, {1, 0}, {0, 1}, {1, 1}});
  X.is_ar_Go();
  EXPECT_EQ(record(X).text.find("arithmetically Gorenstein"), std::string::npos);
  scheme Y = make_set({{0, 0}, {1, 0}, {2, 0}, {0, 1}});
  results known = Y.known();
  known.is_ar_Go = true;
  Y.restore(known);
  Y.sep();
  EXPECT_NE(record(Y).text.find("scheme has NOT Cayley-Bacharach property\n" + line +
                                "scheme is arithmetically Gorenstein\n"),
            std::string::npos);
}

// All that there is, in its order, with one table for both linear strands; but for the order ideal,
// which goes to the screen.
std::string plain_record(const scheme& X) {
  const results& known = X.known();
  std::string text = "scheme consists of " + std::to_string(X.s()) + " points:\n" +
                     shown(disp_scheme, X.P()) + "\n" + line;
  if (known.bu_mo != nullptr) {
    for (const auto display : {hilb_fct, delta_fct, sigma_X, delta_X, alpha_X}) {
      text += shown(display, known.bu_mo->H);
    }
  }
  if (known.sep != nullptr) {
    text += shown([&](std::ostream& out) { text::is_CB(out, known.is_CB); });
    text += shown([&](std::ostream& out) { text::is_ar_Go(out, known.is_ar_Go); });
  }
  if (known.min_Ix != nullptr) text += shown(deg_min, *known.min_Ix);
  if (known.socle != nullptr) text += shown(disp_socle, *known.socle);
  if (known.omega != nullptr && known.omega->no_of_pr() > 0)
    text += shown(disp_omega, *known.omega);
  const bool both = known.strands.linid && known.strands.linom;
  if (both) text += shown(disp_linres, known);
  if (!both && known.strands.linom) text += shown(disp_linom, known);
  if (!both && known.strands.linid) text += shown(disp_linid, known);
  return text;
}

TEST(Record, ShowsWhateverThereIsInItsOrder) {
  const std::vector<void (*)(scheme&)> computations = {
      [](scheme& X) { X.bu_mo(); }, [](scheme& X) { X.sep(); },   [](scheme& X) { X.min_Ix(); },
      [](scheme& X) { X.socle(); }, [](scheme& X) { X.omega(); }, [](scheme& X) { X.linid(); },
      [](scheme& X) { X.linom(); }};
  const ring_in_force ring(101, 2);
  for (const std::vector<coordinates>& points :
       {std::vector<coordinates>{}, triangle, points_on_curve(2, 6)}) {
    for (unsigned chosen = 0; chosen < 1U << computations.size(); ++chosen) {
      scheme X = make_set(points);
      for (std::size_t i = 0; i < computations.size(); ++i) {
        if ((chosen >> i & 1U) != 0) computations[i](X);
      }
      const std::string before = contents(X);
      const record found(X);
      EXPECT_EQ(found.text, plain_record(X)) << "after computations " << chosen;
      EXPECT_EQ(found.screen,
                X.known().bu_mo ? shown(text::order_ideal, *X.known().bu_mo) : std::string());
      EXPECT_EQ(contents(X), before);
    }
  }
}

}  // namespace
}  // namespace zep::tests
