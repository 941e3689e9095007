// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/options.h"

#include <getopt.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <iostream>
#include <string_view>
#include <utility>

#include "front/commands/command_reference.h"

namespace zep::front {

namespace {

constexpr int wrong_usage = 2;

// Values for options without a letter of their own.
enum long_option { echo = 256, log_file, seed, stop_on_error, help_text, version, commands };

constexpr std::array<::option, 8> long_options = {
    {{"echo", no_argument, nullptr, echo},
     {"log", required_argument, nullptr, log_file},
     {"seed", required_argument, nullptr, seed},
     {"stop-on-error", no_argument, nullptr, stop_on_error},
     {"help", no_argument, nullptr, help_text},
     {"version", no_argument, nullptr, version},
     {"commands", no_argument, nullptr, commands},
     {nullptr, 0, nullptr, 0}}};

constexpr std::string_view help_for_options =
    "usage: zep [OPTIONS] [FILE ...]\n"
    "Computes with finite sets of points in projective space over a prime field.\n"
    "\n"
    "Each FILE is a session; they are run one after the other, '-' is standard input.\n"
    "Without any, standard input is the session.\n"
    "\n"
    "  -e COMMANDS      run these, with ';' or line ends between them\n"
    "  -i               go on with standard input behind the other sessions\n"
    "  -q               leave out banner, settings, prompts and farewell\n"
    "  --echo           repeat each line of the input behind its prompt\n"
    "  --log FILE       append input and output to FILE\n"
    "  --seed N         another sequence of random points (without it: 1234)\n"
    "  --stop-on-error  end with status 1 at the first error that is reported\n"
    "  --commands       print the commands, one a line, and end\n"
    "  --help           print this, and end\n"
    "  --version        print the version, and end\n"
    "\n"
    "Inside, 'help' lists the commands and 'quit' leaves.\n";

std::string lines_of(std::string commands) {
  std::replace(commands.begin(), commands.end(), ';', '\n');
  return commands + "\n";
}

std::optional<std::uint32_t> number(std::string_view text) {
  std::uint32_t n = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), n);
  if (fault != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return n;
}

source named_source(const char* name) {
  if (std::string_view(name) == "-") return {source::kind::standard_input, {}};
  return {source::kind::file, name};
}

command_line ended(int status) { return {status, {}}; }

// The library has said what is wrong, or `complaint` does.
command_line refused(std::string_view complaint = {}) {
  if (!complaint.empty()) std::cerr << "zep: " << complaint << "\n";
  std::cerr << "Try 'zep --help'.\n";
  return ended(wrong_usage);
}

}  // namespace

command_line read_command_line(int argc, char** argv) {
  options chosen;
  bool goes_on = false;
  // The first dash has names of files returned where they stand, as argument of option 1.
  while (true) {
    const int found = ::getopt_long(argc, argv, "-e:iq", long_options.data(), nullptr);
    if (found == -1) break;
    switch (found) {
      case 1:
        chosen.sources.push_back(named_source(optarg));
        break;
      case 'e':
        chosen.sources.push_back({source::kind::commands, lines_of(optarg)});
        break;
      case 'i':
        goes_on = true;
        break;
      case 'q':
        chosen.decorated = false;
        break;
      case echo:
        chosen.echo = true;
        break;
      case log_file:
        chosen.log = optarg;
        break;
      case seed:
        if (const auto n = number(optarg)) {
          chosen.seed = *n;
          break;
        }
        return refused("the seed has to be a number from 0 to 4294967295");
      case stop_on_error:
        chosen.stop_on_error = true;
        break;
      case help_text:
        std::cout << help_for_options;
        return ended(0);
      case version:
        std::cout << "zep " << ZEP_VERSION << "\n";
        return ended(0);
      case commands:
        command_reference(std::cout);
        return ended(0);
      default:
        return refused();
    }
  }
  for (; optind < argc; ++optind) chosen.sources.push_back(named_source(argv[optind]));
  if (goes_on || chosen.sources.empty()) chosen.sources.emplace_back();
  return {std::nullopt, std::move(chosen)};
}

}  // namespace zep::front
