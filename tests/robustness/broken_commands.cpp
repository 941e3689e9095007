// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/robustness/broken_commands.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "front/commands/command.h"
#include "tests/robustness/working_folder.h"

namespace zep::tests {

namespace {

using namespace std::string_view_literals;

constexpr int long_line = 100000;
constexpr std::array bad_names = {"a-b"sv, "\xc3\xa9"sv, "_"sv, "A!"sv, "*"sv, "A.B"sv, "\x01"sv};

void unknown_set(session_draft& s) {
  s.say(s.d.pick(command).name);
  s.say("nobody");
  if (s.d.one_in(2)) s.say("result");
  s.end_line();
}

void missing_set(session_draft& s) {
  s.say(s.d.pick(command).name);
  s.text += '\n';
}

void set_on_the_next_line(session_draft& s) {
  constexpr std::array some = {"sep "sv,        "gbasis\t"sv, "del \r"sv,
                               "hilbertfn  "sv, "putsep "sv,  "get "sv};
  s.say(s.d.pick(some));
  s.text += '\n';
}

void misspelt(session_draft& s) {
  std::string name = s.d.pick(command).name;
  const std::size_t position = s.d.number_below(static_cast<int>(name.size()));
  switch (s.d.number_below(4)) {
    case 0:
      name[position] = static_cast<char>(name[position] ^ 0x20);
      break;
    case 1:
      name.erase(position);
      break;
    case 2:
      name.insert(position, name.substr(position));
      break;
    default:
      name += "abcdefghijkl";
      break;
  }
  s.say(name);
  if (!s.live.empty() && s.d.one_in(2)) s.say("A");
  s.end_line();
}

void more_words(session_draft& s) {
  constexpr std::array some = {"list"sv, "ring"sv, "help"sv, "quiet"sv, "root"sv, "display_all"sv};
  s.say(s.d.pick(some));
  s.say("and more \xff '");
  s.end_line();
}

void bad_name(session_draft& s) {
  constexpr std::array ways = {"get"sv, "scheme"sv, "random"sv, "random2"sv};
  s.say(s.d.pick(ways));
  // A name that is too long is cut; its end stands where the number is expected.
  s.say(s.d.one_in(3) ? "abcdefghijklm"sv : s.d.pick(bad_names));
  s.say("3");
  s.end_line();
}

void unopenable(session_draft& s) {
  const std::string_view name = s.known_name("putsep");
  if (name.empty()) return;
  constexpr std::array some = {"putsep"sv, "putgbasis"sv, "write"sv, "putscheme"sv, "putomega"sv};
  s.say(s.d.pick(some));
  s.say(name);
  s.say(s.d.one_in(4) ? std::string(300, 'n') : std::string(s.d.pick(unwritable)));
  s.end_line();
}

}  // namespace

void broken_command(session_draft& s) {
  constexpr std::array ways = {&unknown_set, &missing_set, &set_on_the_next_line,
                               &misspelt,    &more_words,  &bad_name,
                               &unopenable};
  s.d.pick(ways)(s);
}

void garbage(session_draft& s) {
  constexpr auto bytes =
      "\0\x01\x02\x07\x08\x0b\x0c\x0d\x1a\x1b\x7f\x80\xa0\xc3\xa9\xfe\xff !\"#$%&'()*+,-./:;<=>?@^_~azAZ"sv;
  const int length = s.d.between(1, 40);
  for (int i = 0; i < length; ++i) s.text += s.d.pick(bytes);
  s.end_line();
}

void long_words(session_draft& s) {
  constexpr std::array starts = {
      ""sv,      "char "sv,     "dim x"sv,     "get A "sv,       "get B 1\n"sv,
      "list "sv, "random A "sv, "scheme B "sv, "identifiers "sv, "display "sv};
  constexpr std::array fillings = {"9"sv, "x"sv,        " "sv,  "a "sv,
                                   "-"sv, "1 1 1 1 "sv, "\0"sv, "\xff"sv};
  s.text += s.d.pick(starts);
  const std::string_view filling = s.d.pick(fillings);
  for (int size = 0; size < long_line; size += static_cast<int>(filling.size())) s.text += filling;
  s.end_line();
}

}  // namespace zep::tests
