// SPDX-License-Identifier: GPL-3.0-or-later
// Whole sessions: any bytes are what somebody types.
//
// The program refuses no honest work, and some of it grows exponentially: subsets of separators in
// the uniformity tests, vectors of the linear strands. A fuzzer would find nothing but such inputs.
// So inputs that may ask for a large computation are not run: a number above a limit may stand only
// where it can't be a number of points or a dimension. The limit depends on the commands in the
// input, so that the cheap ones see every dimension.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "arith/Fp8.h"
#include "front/program.h"
#include "tests/fuzz/sandbox.h"

namespace {

// What the commands with these letters in their names can do with in a fraction of a second.
struct size_limit {
  std::string_view letters;
  int limit;
};

constexpr std::array<size_limit, 6> size_limits = {
    {{"linid", 6}, {"linom", 6}, {"linres", 6}, {"linsyz", 6}, {"omega", 12}, {"uf", 14}}};
constexpr int largest_size = 27;

bool is_space(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
bool is_digit(char c) { return c >= '0' && c <= '9'; }

std::vector<std::string_view> words_of(std::string_view text) {
  std::vector<std::string_view> words;
  const char* from = text.begin();
  while ((from = std::find_if_not(from, text.end(), is_space)) != text.end()) {
    const char* const to = std::find_if(from, text.end(), is_space);
    words.emplace_back(from, static_cast<std::size_t>(to - from));
    from = to;
  }
  return words;
}

// The largest number in the word. A word that is cut makes it smaller at most. Capped.
int largest_number(std::string_view word) {
  constexpr int cap = 1000000;
  int largest = 0;
  int number = 0;
  for (const char c : word) {
    number = is_digit(c) ? std::min(cap, 10 * number + (c - '0')) : 0;
    largest = std::max(largest, number);
  }
  return largest;
}

bool begins_a_number(std::string_view word) {
  return is_digit(word[0]) || word[0] == '-' || word[0] == '+';
}

// A size comes with its command one or two words before. Two numbers there make a coordinate.
bool is_coordinate(const std::vector<std::string_view>& words, std::size_t i) {
  return i >= 2 && begins_a_number(words[i - 1]) && begins_a_number(words[i - 2]);
}

// A characteristic, unless `char` is the name of a point set here.
bool is_characteristic(const std::vector<std::string_view>& words, std::size_t i) {
  if (i == 0 || words[i - 1] != "char") return false;
  return i == 1 || (words[i - 2] != "get" && words[i - 2] != "random" && words[i - 2] != "random2");
}

int limit_of(std::string_view text) {
  int limit = largest_size;
  for (const auto& [letters, smaller] : size_limits) {
    if (text.find(letters) != std::string_view::npos) limit = std::min(limit, smaller);
  }
  return limit;
}

bool may_take_long(std::string_view text) {
  const int limit = limit_of(text);
  const std::vector<std::string_view> words = words_of(text);
  for (std::size_t i = 0; i < words.size(); ++i) {
    const int number = largest_number(words[i]);
    if (number <= limit || is_coordinate(words, i)) continue;
    if (number > zep::tests::largest_prime || !is_characteristic(words, i)) return true;
  }
  return false;
}

// Point files that the input may name, one letter each. The fuzzer learns from the other target how
// files go wrong.
void put_point_files() {
  zep::tests::put_file("p", "3 4\n1 0 0\n1 1 0\n1 0 1\n1 2/3 3\n");
  zep::tests::put_file("q", "4 5\n1 0 0 0\n1 1 0 0\n1 0 1 0\n1 0 0 1\n1 3 7 11\n");
  zep::tests::put_file("r", "4 3\n1 0 0 0\n0 1 1 1\n1 1 1 o");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string typed(data, data + size);
  if (may_take_long(typed)) return -1;  // not worth keeping
  zep::tests::start_afresh();
  put_point_files();
  std::istringstream keyboard(typed);
  zep::tests::in_sandbox([&] { zep::tests::run_program(keyboard); });
  return 0;
}
