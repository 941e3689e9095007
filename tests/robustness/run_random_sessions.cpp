// SPDX-License-Identifier: GPL-3.0-or-later
// Runs random sessions.
//   run_random_sessions FROM TO         those with these numbers
//   run_random_sessions --into F SEED   puts one, and the files that it reads, into folder F
#include <sys/wait.h>

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "tests/robustness/forked_run.h"
#include "tests/robustness/random_sessions.h"
#include "tests/robustness/working_folder.h"

namespace {

// Sessions with these numbers are run twice.
constexpr unsigned repeated_each = 10;
constexpr std::size_t longest_shown = 6000;

std::string escaped(std::string_view text) {
  constexpr std::string_view hexadecimal = "0123456789abcdef";
  std::string shown;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '\n') {
      shown += "\\n\n";
    } else if (byte < ' ' || byte > '~' || c == '\\') {
      shown += "\\x";
      shown += hexadecimal[byte >> 4U];
      shown += hexadecimal[byte & 15U];
    } else {
      shown += c;
    }
  }
  return shown;
}

void show(const char* what, std::string_view text) {
  const bool whole = text.size() <= longest_shown;
  // The end of an output tells what happened.
  const std::string_view shown = whole ? text : text.substr(text.size() - longest_shown);
  std::cout << what << (whole ? ":\n" : ", its end:\n") << escaped(shown) << "\n";
}

class tester {
 public:
  bool passes(unsigned seed) {
    const std::string session = zep::tests::random_session(seed);
    const zep::tests::outcome run = zep::tests::run_session(scratch_.path(), session);
    if (WIFEXITED(run.status) && WEXITSTATUS(run.status) == 1) ++divisions_by_zero_;
    std::string fault = zep::tests::fault_of(run);
    if (fault.empty() && seed % repeated_each == 0) fault = difference_of_second_run(session, run);
    if (fault.empty()) return true;
    report(seed, fault, session, run);
    return false;
  }

  int divisions_by_zero() const { return divisions_by_zero_; }

 private:
  std::string difference_of_second_run(const std::string& session,
                                       const zep::tests::outcome& first) {
    const zep::tests::outcome second = zep::tests::run_session(scratch_.path(), session);
    const bool same =
        second.status == first.status && second.out == first.out && second.err == first.err;
    return same ? "" : "the second run differs";
  }

  static void report(unsigned seed, const std::string& fault, const std::string& session,
                     const zep::tests::outcome& run) {
    std::cout << "session " << seed << ": " << fault << "\n"
              << "alone: run_random_sessions " << seed << " " << seed << "\n"
              << "in the program: run_random_sessions --into FOLDER " << seed
              << "; cd FOLDER; zep < session.zep\n";
    show("session", session);
    show("standard output", run.out);
    show("standard error", run.err);
  }

  zep::tests::scratch_folder scratch_;
  int divisions_by_zero_ = 0;
};

int run_all(unsigned from, unsigned to) {
  tester test;
  int failures = 0;
  for (unsigned seed = from; seed <= to; ++seed) {
    if (!test.passes(seed)) ++failures;
  }
  std::cout << to - from + 1 << " sessions, " << test.divisions_by_zero()
            << " of them ended by a division by zero; " << failures << " failed\n";
  return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

void put_into(const std::filesystem::path& folder, unsigned seed) {
  if (std::filesystem::exists(folder)) throw std::runtime_error("there is such a folder");
  zep::tests::fill_working_folder(folder);
  std::ofstream(folder / "session.zep", std::ios::binary) << zep::tests::random_session(seed);
}

unsigned number(const std::string& text) { return static_cast<unsigned>(std::stoul(text)); }

int carry_out(const std::vector<std::string>& arguments) {
  if (arguments.size() == 2) return run_all(number(arguments[0]), number(arguments[1]));
  if (arguments.size() == 3 && arguments[0] == "--into") {
    put_into(arguments[1], number(arguments[2]));
    return EXIT_SUCCESS;
  }
  std::cerr << "usage: run_random_sessions FROM TO | --into FOLDER SEED\n";
  return EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return carry_out({argv + 1, argv + argc});
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << "\n";
    return EXIT_FAILURE;
  }
}
