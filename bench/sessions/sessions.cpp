// SPDX-License-Identifier: GPL-3.0-or-later
// Times whole sessions: the start of the program, reading the points, computing, writing the
// output.
//   sessions [--runs N] [--filter TEXT] [--long] ZEP [OTHER]
// Prints the median time and the peak memory of N runs (5) of each case whose name holds TEXT, the
// slow ones with --long only. With two programs, their runs alternate, and the ratio of the medians
// is that of OTHER to ZEP.
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "bench/sessions/measured_run.h"
#include "bench/sessions/session_case.h"
#include "bench/sessions/temporary_folder.h"

namespace {

constexpr int name_width = 26;
constexpr int column_width = 11;

class usage_error : public std::runtime_error {
 public:
  usage_error()
      : runtime_error("usage: sessions [--runs N] [--filter TEXT] [--long] ZEP [OTHER]") {}
};

struct options {
  int runs = 5;
  std::string filter;
  bool with_slow = false;
  std::vector<std::filesystem::path> programs;
};

int positive_number(std::string_view text) {
  int n = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), n);
  if (error != std::errc() || end != text.data() + text.size() || n < 1) throw usage_error();
  return n;
}

std::filesystem::path program(std::string_view name) {
  std::filesystem::path path = std::filesystem::absolute(name);
  if (::access(path.c_str(), X_OK) != 0) throw std::runtime_error("can't run " + path.string());
  return path;
}

options read_options(const std::vector<std::string_view>& words) {
  options chosen;
  for (auto word = words.begin(); word != words.end(); ++word) {
    const bool has_value = *word == "--runs" || *word == "--filter";
    if (has_value && word + 1 == words.end()) throw usage_error();
    if (*word == "--runs") {
      chosen.runs = positive_number(*++word);
    } else if (*word == "--filter") {
      chosen.filter = *++word;
    } else if (*word == "--long") {
      chosen.with_slow = true;
    } else if (word->starts_with("--")) {
      throw usage_error();
    } else {
      chosen.programs.push_back(program(*word));
    }
  }
  if (chosen.programs.empty() || chosen.programs.size() > 2) throw usage_error();
  return chosen;
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t half = values.size() / 2;
  return values.size() % 2 == 1 ? values[half] : (values[half - 1] + values[half]) / 2;
}

// The runs of one program.
struct series {
  std::vector<double> milliseconds;
  double peak = 0;

  void add(const zep::tests::measurement& run) {
    milliseconds.push_back(run.milliseconds);
    peak = std::max(peak, run.megabytes);
  }
};

void print_cell(double value) { std::cout << std::setw(column_width) << value; }

void print_heading(const options& chosen) {
  const bool two = chosen.programs.size() == 2;
  std::cout << "ZEP: " << chosen.programs.front().string() << "\n";
  if (two) std::cout << "OTHER: " << chosen.programs.back().string() << "\n";
  std::cout << std::left << std::setw(name_width) << "case" << std::right << std::setw(column_width)
            << "ZEP ms" << std::setw(column_width) << "MB";
  if (two) {
    std::cout << std::setw(column_width) << "OTHER ms" << std::setw(column_width) << "MB"
              << std::setw(column_width) << "OTHER/ZEP";
  }
  std::cout << "\n";
}

void print_results(const std::vector<series>& results) {
  std::cout << std::fixed << std::setprecision(1);
  for (const series& result : results) {
    print_cell(median(result.milliseconds));
    print_cell(result.peak);
  }
  if (results.size() == 2) {
    std::cout << std::setprecision(3);
    print_cell(median(results[1].milliseconds) / median(results[0].milliseconds));
  }
  std::cout << "\n";
}

std::vector<series> alternating_runs(const zep::tests::session_case& timed, const options& chosen) {
  const zep::tests::temporary_folder folder;
  zep::tests::write_case(timed, folder.path());
  std::vector<series> results(chosen.programs.size());
  for (int run = 0; run < chosen.runs; ++run) {
    for (std::size_t i = 0; i < results.size(); ++i) {
      try {
        results[i].add(zep::tests::measured_run(chosen.programs[i], folder.path()));
      } catch (const zep::tests::failed_run& failure) {
        throw zep::tests::failed_run(chosen.programs[i].string() + ": " + failure.what());
      }
    }
  }
  return results;
}

// True unless a run failed.
bool time_case(const zep::tests::session_case& timed, const options& chosen) {
  std::cout << std::left << std::setw(name_width) << name_of(timed) << std::right << std::flush;
  try {
    print_results(alternating_runs(timed, chosen));
    return true;
  } catch (const zep::tests::failed_run& failure) {
    std::cout << " failed: " << failure.what() << "\n";
    return false;
  }
}

std::vector<zep::tests::session_case> chosen_cases(const options& chosen) {
  std::vector<zep::tests::session_case> cases;
  for (const zep::tests::session_case& timed : zep::tests::session_cases()) {
    const bool named = name_of(timed).find(chosen.filter) != std::string::npos;
    if (named && (chosen.with_slow || !timed.slow)) cases.push_back(timed);
  }
  if (cases.empty()) throw std::runtime_error("there is no such case");
  return cases;
}

int carry_out(const std::vector<std::string_view>& words) {
  const options chosen = read_options(words);
  const auto cases = chosen_cases(chosen);
  zep::tests::end_runs_at_interrupt();
  print_heading(chosen);
  int failures = 0;
  for (const zep::tests::session_case& timed : cases) {
    if (!time_case(timed, chosen)) ++failures;
  }
  return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return carry_out({argv + 1, argv + argc});
  } catch (const std::exception& failure) {
    std::cout.flush();
    std::cerr << failure.what() << "\n";
    return EXIT_FAILURE;
  }
}
