#include "front/files.h"

#include <fcntl.h>
#include <sys/types.h>

#include <filesystem>
#include <iostream>
#include <system_error>
#include <utility>

namespace zep {

namespace {

constexpr mode_t result_permissions = 0664;

bool has_nul(const std::string& name) { return name.find('\0') != std::string::npos; }

int open_result(const std::string& name, existing_contents existing) {
  if (has_nul(name)) return -1;
  const int position = existing == existing_contents::drop ? O_TRUNC : O_APPEND;
  return ::open(name.c_str(), O_WRONLY | O_CREAT | position, result_permissions);
}

}  // namespace

std::string ask_filename(input& in) {
  std::cout << "enter filename : ";
  return in.word();
}

std::ifstream open_for_reading(const std::string& name) {
  if (has_nul(name)) return {};
  std::error_code ignored;
  if (std::filesystem::is_directory(name, ignored)) return {};
  return std::ifstream(name);
}

result_file::result_file(std::string name, existing_contents existing)
    : name_(std::move(name)),
      buffer_(open_result(name_, existing), std::ios::out),
      stream_(&buffer_) {}

void result_file::close() {
  const bool flushed = stream_.flush().good();
  const bool closed = buffer_.close() != nullptr;
  if (!flushed || !closed) std::cerr << "warning: can't write all of " << name_ << "\n";
}

}  // namespace zep
