#include "tests/robustness/random_sessions.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "front/command.h"
#include "tests/robustness/dice.h"
#include "tests/robustness/typed_points.h"
#include "tests/robustness/working_folder.h"

namespace zep {

namespace {

using namespace std::string_view_literals;

constexpr int most_commands = 60;
constexpr int most_records = 50;
constexpr int long_line = 100000;

// The sets named first are small, whatever becomes of the session, so that what walks over subsets
// or makes linear strands of them ends soon. The others may have some more points.
constexpr std::array small_names = {"A"sv, "B"sv,  "C"sv, "x1"sv,  "abcdefghijkl"sv,
                                    "0"sv, "Zz"sv, "7"sv, "list"sv};
constexpr std::array large_names = {"L"sv, "Large"sv, "Labcdefghijk"sv};
constexpr int large_mark = 'L';

constexpr std::array bad_names = {"a-b"sv, "\xc3\xa9"sv, "_"sv, "A!"sv, "*"sv, "A.B"sv, "\x01"sv};
constexpr std::array small_results = {"result"sv, "second.txt"sv, "\xc3\xa4"sv, "r"sv,
                                      "space.pts"sv};
constexpr std::array large_results = {"Large"sv, "Large.pts"sv};

constexpr std::array characteristics = {2, 3, 5, 7, 11, 13, 31, 101, 101, 127, 251};
constexpr std::array composite = {4, 6, 9, 15, 25, 100, 128, 221, 249, 250};
constexpr std::array bad_numbers = {
    "0"sv,   "1"sv, "-7"sv, "x"sv,  "99999999999"sv, "-99999999999"sv,
    "252"sv, "+"sv, "-"sv,  "1x"sv, "\xff"sv,        ""sv};
constexpr std::array ring_names = {
    "WXYZT"sv, "!@#$%"sv, "XXXXX"sv, "12345"sv, "\xc3\xa9\xc3\xa8t"sv,
    "'<:>;"sv, "+-*^2"sv, "abcdef"sv};
constexpr auto many_names = "abcdefghijklmnopqrstuvwxyzABCD"sv;

// How far the space grows in a session.
enum class extent { low, middle, wide };

bool walks_over_subsets(std::string_view name) { return name == "is_duf" || name == "is_uf"; }

bool makes_strands(std::string_view name) {
  return name.starts_with("putlin") || (name.starts_with("lin") && name != "lingenpos");
}

bool asks_filename(std::string_view name) {
  return name.starts_with("put") || name.starts_with("write");
}

bool deletes_all(std::string_view name) {
  constexpr std::array names = {"char"sv, "deglex"sv, "degrevlex"sv, "del_all"sv, "dim"sv};
  return std::find(names.begin(), names.end(), name) != names.end();
}

bool is_large(std::string_view name) { return name.front() == large_mark; }

class session_writer {
 public:
  explicit session_writer(unsigned seed) : d(seed) {}

  std::string write();

 private:
  using step = void (session_writer::*)();
  struct own_arguments {
    std::string_view command;
    step write;
  };
  static const std::array<own_arguments, 10> with_own_arguments;

  void choose_kind();
  void write_step();

  // Commands with arguments that are good most of the time.
  void any_command();
  void with_identifier(const command_record& c);
  bool writes_own_arguments(std::string_view name);
  void characteristic();
  void dimension();
  void ring_identifiers();
  void range();
  void get();
  void scheme();
  void random();
  void random2();
  void quit();
  void exit();

  void point_set();
  void identifier_alone();

  // What is typed wrong.
  void broken();
  void unknown_identifier();
  void missing_identifier();
  void identifier_on_the_next_line();
  void misspelt();
  void more_words();
  void bad_name();
  void unopenable();
  void garbage();
  void long_words();

  void random_set(std::string_view way);
  void fill_the_table();
  void end_line();
  void say(std::string_view word);
  std::string_view new_name();
  std::string_view known_name(std::string_view name);
  int count_for(std::string_view name);
  std::string some_count(std::string_view name);
  std::string_view filename_to_read(std::string_view name);
  std::string_view filename_to_write(std::string_view name);
  int new_dimension();
  typed_space space() const { return {dim_, p_, line_end_}; }
  void forget_sets() { live_.clear(); }

  void mutate();
  void keep_to_the_folder();
  void cut();

  dice d;
  extent extent_ = extent::low;
  bool mutated_ = false;
  const char* line_end_ = "\n";
  std::string text_;

  // What the session has come to, as far as its own words tell.
  std::vector<std::string_view> live_;
  int dim_ = 3;
  int p_ = 101;
  int names_ = 27;
};

const std::array<session_writer::own_arguments, 10> session_writer::with_own_arguments = {{
    {"char", &session_writer::characteristic},
    {"dim", &session_writer::dimension},
    {"exit", &session_writer::exit},
    {"get", &session_writer::get},
    {"identifiers", &session_writer::ring_identifiers},
    {"quit", &session_writer::quit},
    {"random", &session_writer::random},
    {"random2", &session_writer::random2},
    {"range", &session_writer::range},
    {"scheme", &session_writer::scheme},
}};

void session_writer::choose_kind() {
  constexpr std::array extents = {extent::low,    extent::low,    extent::low,
                                  extent::middle, extent::middle, extent::wide};
  extent_ = d.pick(extents);
  mutated_ = d.one_in(4);
  if (d.one_in(8)) line_end_ = "\r\n";
}

std::string session_writer::write() {
  choose_kind();
  if (d.one_in(40)) {
    fill_the_table();
  } else {
    const int commands = d.between(1, most_commands);
    for (int i = 0; i < commands; ++i) write_step();
  }
  if (mutated_) mutate();
  keep_to_the_folder();
  if (d.one_in(3)) cut();
  return text_;
}

void session_writer::write_step() {
  const int kind = d.number_below(100);
  if (kind < 60) return any_command();
  if (kind < 75) return point_set();
  if (kind < 80) return identifier_alone();
  if (kind < 95) return broken();
  if (kind < 99 || !d.one_in(4)) return garbage();
  long_words();
}

void session_writer::say(std::string_view word) {
  if (!text_.empty() && text_.back() != '\n') text_ += d.one_in(20) ? " \t" : " ";
  text_ += word;
}

void session_writer::end_line() {
  if (d.one_in(30)) text_ += ' ';
  text_ += line_end_;
  if (d.one_in(30)) text_ += line_end_;
}

// Good commands.

void session_writer::any_command() {
  const command_record& c = d.pick(command);
  // Sets that live longer see more.
  if (deletes_all(c.name) && d.one_in(2)) return;
  if (c.kind != command_kind::nothing) {
    with_identifier(c);
  } else if (!writes_own_arguments(c.name)) {
    if (deletes_all(c.name)) forget_sets();
    say(c.name);
    end_line();
  }
}

bool session_writer::writes_own_arguments(std::string_view name) {
  const auto* const own =
      std::find_if(with_own_arguments.begin(), with_own_arguments.end(),
                   [name](const own_arguments& entry) { return entry.command == name; });
  if (own == with_own_arguments.end()) return false;
  (this->*own->write)();
  return true;
}

void session_writer::with_identifier(const command_record& c) {
  const std::string_view name = c.name;
  if (extent_ == extent::wide && makes_strands(name)) return;
  if (known_name(name).empty()) point_set();
  const std::string_view identifier = known_name(name);
  if (identifier.empty()) return;
  say(name);
  say(identifier);
  if (name == "del") std::erase(live_, identifier);
  if (name == "is_uf")
    say(d.one_in(5) ? std::string(d.pick(bad_numbers)) : std::to_string(d.between(1, 4)));
  if (asks_filename(name)) {
    if (d.one_in(2)) end_line();
    say(filename_to_write(identifier));
  }
  end_line();
}

// A set that the command can be done with soon; empty if there is none.
std::string_view session_writer::known_name(std::string_view name) {
  const bool small_only =
      walks_over_subsets(name) || (makes_strands(name) && extent_ != extent::low);
  std::vector<std::string_view> names;
  std::copy_if(live_.begin(), live_.end(), std::back_inserter(names),
               [&](std::string_view n) { return !small_only || !is_large(n); });
  return names.empty() ? ""sv : d.pick(names);
}

void session_writer::characteristic() {
  say("char");
  if (d.one_in(5)) {
    say(d.pick(bad_numbers));
  } else {
    p_ = d.one_in(6) ? d.pick(composite) : d.pick(characteristics);
    say(std::to_string(p_));
    forget_sets();
  }
  end_line();
}

int session_writer::new_dimension() {
  switch (extent_) {
    case extent::low:
      return d.between(2, 3);
    case extent::middle:
      return d.between(2, 5);
    default:
      // Beyond 26 the names are asked for until the input ends.
      return d.one_in(15) ? 27 : d.between(2, 26);
  }
}

void session_writer::dimension() {
  say("dim");
  if (d.one_in(5)) {
    constexpr std::array bad_dimensions = {"0"sv, "1"sv, "-7"sv, "x"sv, "99999999999"sv, "+"sv};
    say(d.pick(bad_dimensions));
    return end_line();
  }
  dim_ = new_dimension();
  say(std::to_string(dim_));
  forget_sets();
  end_line();
  if (dim_ + 1 <= names_) return;
  if (d.one_in(4)) say("abc");
  say(many_names.substr(0, at(dim_ + 1)));
  names_ = dim_ + 1;
  end_line();
}

void session_writer::ring_identifiers() {
  say("identifiers");
  std::string_view names = d.one_in(4) ? many_names : d.pick(ring_names);
  if (d.one_in(4)) end_line();
  say(names);
  // Too few are asked for again; words that hold enough are for the taking.
  if (static_cast<int>(names.size()) <= dim_) say(names = many_names);
  names_ = static_cast<int>(names.size());
  end_line();
}

void session_writer::range() {
  say("range");
  while (d.one_in(3)) {
    end_line();
    say(d.pick(bad_numbers));
  }
  if (d.one_in(2)) end_line();
  say(std::to_string(d.one_in(3) ? d.between(1, 300) : d.between(3, 50)));
  end_line();
}

void session_writer::quit() {
  if (!d.one_in(5)) return;
  say("quit");
  end_line();
}

void session_writer::exit() {
  if (!d.one_in(5)) return;
  say("exit");
  end_line();
}

// Point sets.

std::string_view session_writer::new_name() {
  const bool large = !mutated_ && d.one_in(4);
  std::string_view name = large ? d.pick(large_names) : d.pick(small_names);
  // Mostly one that is free.
  for (int i = 0; i < 5 && std::find(live_.begin(), live_.end(), name) != live_.end(); ++i) {
    name = large ? d.pick(large_names) : d.pick(small_names);
  }
  if (std::find(live_.begin(), live_.end(), name) == live_.end()) live_.push_back(name);
  return name;
}

int session_writer::count_for(std::string_view name) {
  if (extent_ == extent::wide) return d.between(1, is_large(name) ? 10 : 6);
  if (!is_large(name)) return d.between(1, 12);
  return extent_ == extent::low && d.one_in(8) ? 60 : d.between(10, 25);
}

// The count, or, seldom, one that can't be had.
std::string session_writer::some_count(std::string_view name) {
  if (!d.one_in(10)) return std::to_string(count_for(name));
  constexpr std::array bad_counts = {"0"sv, "-1"sv, "-2000000000"sv, "99999999999"sv, "x"sv, "+"sv};
  if (extent_ == extent::low && d.one_in(3)) return "2000000000";
  return std::string(d.pick(bad_counts));
}

void session_writer::point_set() {
  constexpr std::array ways = {&session_writer::get, &session_writer::scheme,
                               &session_writer::random, &session_writer::random2};
  (this->*d.pick(ways))();
}

void session_writer::get() {
  const std::string_view name = new_name();
  say("get");
  say(name);
  if (d.one_in(12)) {
    // All that follows is read as points, as long as it can be.
    say(d.one_in(2) ? "2000000000" : some_count(name));
    return end_line();
  }
  const int count = count_for(name);
  if (d.one_in(3)) end_line();
  say(std::to_string(count));
  end_line();
  text_ += d.one_in(6) ? broken_points(d, space(), count) : typed_points(d, space(), count);
}

void session_writer::scheme() {
  const std::string_view name = new_name();
  say("scheme");
  say(name);
  if (d.one_in(2)) end_line();
  say(filename_to_read(name));
  end_line();
}

std::string_view session_writer::filename_to_read(std::string_view name) {
  switch (d.number_below(9)) {
    case 0:
      return filename_to_write(name);
    case 1:
      return d.one_in(5) ? point_file::fatal : d.pick(unwritable);
    case 2:
      return d.pick(point_file::bad);
    case 3:
    case 4:
      return d.pick(point_file::odd);
    default:
      return d.pick(point_file::good);
  }
}

// Results of large sets go into files of their own, so that no small set is read from one.
std::string_view session_writer::filename_to_write(std::string_view name) {
  if (d.one_in(10)) return d.pick(unwritable);
  return is_large(name) ? d.pick(large_results) : d.pick(small_results);
}

void session_writer::random() { random_set("random"); }

void session_writer::random2() { random_set("random2"); }

void session_writer::random_set(std::string_view way) {
  const std::string_view name = new_name();
  say(way);
  say(name);
  if (d.one_in(10)) end_line();
  say(some_count(name));
  end_line();
}

void session_writer::identifier_alone() {
  const std::string_view name = known_name("display");
  if (name.empty()) return point_set();
  say(name);
  end_line();
}

void session_writer::fill_the_table() {
  for (int i = 0; i < most_records + 3; ++i) {
    say("random");
    say("A" + std::to_string(i));
    say("1");
    end_line();
  }
  live_ = {"A0"sv, "A49"sv, "A50"sv};
  for (int i = 0; i < 5; ++i) any_command();
}

// Broken commands.

void session_writer::broken() {
  constexpr std::array ways = {&session_writer::unknown_identifier,
                               &session_writer::missing_identifier,
                               &session_writer::identifier_on_the_next_line,
                               &session_writer::misspelt,
                               &session_writer::more_words,
                               &session_writer::bad_name,
                               &session_writer::unopenable};
  (this->*d.pick(ways))();
}

void session_writer::unknown_identifier() {
  say(d.pick(command).name);
  say("nobody");
  if (d.one_in(2)) say("result");
  end_line();
}

void session_writer::missing_identifier() {
  say(d.pick(command).name);
  text_ += '\n';
}

void session_writer::identifier_on_the_next_line() {
  constexpr std::array some = {"sep "sv,        "gbasis\t"sv, "del \r"sv,
                               "hilbertfn  "sv, "putsep "sv,  "get "sv};
  say(d.pick(some));
  text_ += '\n';
}

void session_writer::misspelt() {
  std::string name = d.pick(command).name;
  const std::size_t position = at(d.number_below(static_cast<int>(name.size())));
  switch (d.number_below(4)) {
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
  say(name);
  if (!live_.empty() && d.one_in(2)) say("A");
  end_line();
}

void session_writer::more_words() {
  constexpr std::array some = {"list"sv, "ring"sv, "help"sv, "quiet"sv, "root"sv, "display_all"sv};
  say(d.pick(some));
  say("and more \xff '");
  end_line();
}

void session_writer::bad_name() {
  constexpr std::array ways = {"get"sv, "scheme"sv, "random"sv, "random2"sv};
  say(d.pick(ways));
  // A name that is too long is cut; its end stands where the number is expected.
  say(d.one_in(3) ? "abcdefghijklm"sv : d.pick(bad_names));
  say("3");
  end_line();
}

void session_writer::unopenable() {
  const std::string_view name = known_name("putsep");
  if (name.empty()) return;
  constexpr std::array some = {"putsep"sv, "putgbasis"sv, "write"sv, "putscheme"sv, "putomega"sv};
  say(d.pick(some));
  say(name);
  say(d.one_in(4) ? std::string(300, 'n') : std::string(d.pick(unwritable)));
  end_line();
}

void session_writer::garbage() {
  constexpr auto bytes =
      "\0\x01\x02\x07\x08\x0b\x0c\x0d\x1a\x1b\x7f\x80\xa0\xc3\xa9\xfe\xff !\"#$%&'()*+,-./:;<=>?@^_~azAZ"sv;
  const int length = d.between(1, 40);
  for (int i = 0; i < length; ++i) text_ += d.pick(bytes);
  end_line();
}

void session_writer::long_words() {
  constexpr std::array starts = {
      ""sv,      "char "sv,     "dim x"sv,     "get A "sv,       "get B 1\n"sv,
      "list "sv, "random A "sv, "scheme B "sv, "identifiers "sv, "display "sv};
  constexpr std::array fillings = {"9"sv, "x"sv,        " "sv,  "a "sv,
                                   "-"sv, "1 1 1 1 "sv, "\0"sv, "\xff"sv};
  text_ += d.pick(starts);
  const std::string_view filling = d.pick(fillings);
  for (int size = 0; size < long_line; size += static_cast<int>(filling.size())) text_ += filling;
  end_line();
}

// What happens to the whole text.

bool is_digit(char c) { return c >= '0' && c <= '9'; }

// Some bytes are changed. Numbers stay whole, for a count that is too large to be accepted has
// parts that are accepted and take minutes.
void session_writer::mutate() {
  constexpr auto bytes = "\0\x01\x7f\x80\xff!-+:.azAZ_"sv;
  for (int i = d.between(1, 8); i > 0 && !text_.empty(); --i) {
    const std::size_t position = at(d.number_below(static_cast<int>(text_.size())));
    const char old = text_[position];
    if (old == '\n' || old == ' ' || old == '-' || is_digit(old)) continue;
    if (d.one_in(3)) {
      text_.erase(position, 1);
    } else if (d.one_in(2)) {
      text_.insert(position, 1, d.pick(bytes));
    } else {
      text_[position] = d.pick(bytes);
    }
  }
}

bool is_alphanumeric(char c) {
  return is_digit(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// No name of a file may begin at the root. One can begin behind white space, or behind a name that
// is as long as names can be.
void session_writer::keep_to_the_folder() {
  int offset = 0;
  for (std::size_t i = 0; i < text_.size(); ++i) {
    const char c = text_[i];
    const bool blank = c == ' ' || (c >= '\t' && c <= '\r');
    const bool inside = i > 0 && is_alphanumeric(text_[i - 1]) && offset != identifier_length;
    if (c == '/' && !inside) text_[i] = '_';
    offset = blank ? 0 : offset + 1;
  }
}

// The end may lie within a number, but not behind many of its digits, for the same reason.
void session_writer::cut() {
  if (text_.empty()) return;
  constexpr std::size_t most_digits = 3;
  text_.resize(at(d.number_below(static_cast<int>(text_.size()))));
  const std::size_t number = text_.find_last_not_of("0123456789") + 1;
  text_.resize(std::min(text_.size(), number + most_digits));
}

}  // namespace

std::string random_session(unsigned seed) { return session_writer(seed).write(); }

}  // namespace zep
