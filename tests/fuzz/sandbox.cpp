// SPDX-License-Identifier: GPL-3.0-or-later
// Stands in for front/files/open_file.cpp: the linker takes these definitions and leaves those of
// the library out.
#include "tests/fuzz/sandbox.h"

#include <fcntl.h>
#ifdef ZEP_HAVE_MEMFD
#include <sys/mman.h>
#endif
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "front/files/files.h"

namespace zep::tests {

namespace {

constexpr std::size_t most_files = 16;

// A file that is gone when nobody needs it any more: anonymous memory, where the system has that.
class hidden_file {
 public:
#ifdef ZEP_HAVE_MEMFD
  hidden_file() : descriptor_(::memfd_create("result", MFD_CLOEXEC)) {
    path_ = "/proc/self/fd/" + std::to_string(descriptor_);
  }
  ~hidden_file() { ::close(descriptor_); }
#else
  hidden_file() : path_(std::filesystem::temp_directory_path() / "zep-fuzzing-XXXXXX") {
    descriptor_ = ::mkstemp(path_.data());
  }
  ~hidden_file() {
    ::close(descriptor_);
    ::unlink(path_.c_str());
  }
#endif
  hidden_file(const hidden_file&) = delete;
  hidden_file& operator=(const hidden_file&) = delete;

  bool is_open() const { return descriptor_ >= 0; }
  // Under which it can be opened, each time with a position of its own.
  const std::string& path() const { return path_; }

 private:
  std::string path_;
  int descriptor_ = -1;
};

// The files by the names that sessions know.
std::map<std::string, hidden_file>& files() {
  static std::map<std::string, hidden_file> by_name;
  return by_name;
}

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
    file = files().try_emplace(name).first;
    if (!file->second.is_open()) std::abort();
  }
  return file->second.path();
}

}  // namespace

void put_file(const std::string& name, const std::string& contents) {
  result_file file(name);
  if (!file.is_open()) std::abort();
  file.stream() << contents;
  file.close();
}

void start_afresh() {
  files().clear();
  std::cout.clear();
  std::cerr.clear();
}

}  // namespace zep::tests

namespace zep::front {

int open_result(const std::string& name, existing_contents existing) {
  const std::string path = tests::created(name);
  const int position = existing == existing_contents::drop ? O_TRUNC : O_APPEND;
  return path.empty() ? -1 : ::open(path.c_str(), O_WRONLY | O_CLOEXEC | position);
}

int open_source(const std::string& name) {
  const auto file = tests::files().find(name);
  return file == tests::files().end() ? -1
                                      : ::open(file->second.path().c_str(), O_RDONLY | O_CLOEXEC);
}

}  // namespace zep::front
