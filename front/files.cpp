#include "front/files.h"

#include <filesystem>
#include <iostream>
#include <system_error>

namespace zep {

std::string ask_filename(input& in) {
  std::cout << "enter filename : ";
  return in.word();
}

std::ifstream open_for_reading(const std::string& name) {
  if (name.find('\0') != std::string::npos) return {};
  std::error_code ignored;
  if (std::filesystem::is_directory(name, ignored)) return {};
  return std::ifstream(name);
}

}  // namespace zep
