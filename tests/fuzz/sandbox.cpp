// Stands in for arith/division_by_zero.cpp and front/files/open_file.cpp: the linker takes these
// definitions and leaves those of the libraries out.
#include "tests/fuzz/sandbox.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <string_view>
#include <utility>

#include "arith/Fp.h"
#include "arith/Fp8.h"
#include "arith/division_by_zero.h"
#include "arith/ordering.h"
#include "arith/ring.h"
#include "base/output.h"
#include "base/reporter.h"
#include "front/files/files.h"

namespace zep::tests {

namespace {

constexpr std::size_t most_files = 16;

// The files by name, as descriptors of anonymous memory.
std::map<std::string, int>& files() {
  static std::map<std::string, int> by_name;
  return by_name;
}

void forget_files() {
  for (const auto& [name, descriptor] : files()) ::close(descriptor);
  files().clear();
}

// The path under which the descriptor can be opened, each time with a position of its own.
std::string path_of(int descriptor) { return "/proc/self/fd/" + std::to_string(descriptor); }

bool can_be_created(const std::string& name) {
  return !name.empty() && name != "." && name != ".." &&
         name.find_first_of(std::string_view("/\0", 2)) == std::string::npos &&
         files().size() < most_files;
}

// The path of the file with that name, which is created; "" when it can't be.
std::string created(const std::string& name) {
  if (name == "full") return "/dev/full";
  auto file = files().find(name);
  if (file == files().end()) {
    if (!can_be_created(name)) return "";
    const int descriptor = ::memfd_create("result", MFD_CLOEXEC);
    if (descriptor < 0) std::abort();
    file = files().emplace(name, descriptor).first;
  }
  return path_of(file->second);
}

// The tables keep what was computed for a larger characteristic before.
void clear(Fp8::table& table) {
  for (auto& row : table) std::fill(std::begin(row), std::end(row), std::uint8_t{0});
}

void clear_field() {
  clear(Fp8::add);
  clear(Fp8::sub);
  clear(Fp8::mul);
  clear(Fp8::div);
  Fp8::prime = 101;
  Fp8::reciprocal = 0xFFFFFFFF / 101;
  Fp::prime = 31991;
}

}  // namespace

void put_file(const std::string& name, const std::string& contents) {
  result_file file(name);
  if (!file.is_open()) std::abort();
  file.stream() << contents;
  file.close();
}

void start_afresh() {
  forget_files();
  clear_field();
  set_dimension(3);
  varstring = "XYZTabcdefghijklmnopqrstuvw";
  use_degrevlex();
  set_line_length(80);
  counter = 0;
  verbose = 1;
  std::cout.clear();
  std::cerr.clear();
}

}  // namespace zep::tests

namespace zep::arith {

void division_by_zero(std::string_view /*field*/) { throw tests::division_fault(); }

}  // namespace zep::arith

namespace zep::front {

int open_result(const std::string& name, existing_contents existing) {
  const std::string path = tests::created(name);
  const int position = existing == existing_contents::drop ? O_TRUNC : O_APPEND;
  return path.empty() ? -1 : ::open(path.c_str(), O_WRONLY | O_CLOEXEC | position);
}

int open_source(const std::string& name) {
  const auto file = tests::files().find(name);
  return file == tests::files().end() ? -1 : ::open(tests::path_of(file->second).c_str(), O_RDONLY | O_CLOEXEC);
}

}  // namespace zep::front
