// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/robustness/working_folder.h"

#include <unistd.h>

#include <fstream>
#include <string>
#include <string_view>
#include <system_error>

namespace zep::tests {

namespace {

using namespace std::string_view_literals;

struct file {
  const char* name;
  std::string_view text;
};

constexpr std::array files = {
    file{"plane.pts", "3\n6\n1 0 0\n1 1 0\n1 0 1\n1 1 1\n1 2 3\n1 3 2\n"sv},
    file{"space.pts", "4\n5\n1 0 0 0\n1 1 0 0\n1 0 1 0\n1 0 0 1\n1 1 1 1\n"sv},
    file{"line.pts", "4 4 1 0 0 0 1 1 2 3 1 2 4 6 1 3 6 9"sv},
    file{"windows.pts", "4\r\n3\r\n1 2 3 4\r\n1 5 6 7\r\n1 8 9 1\r\n"sv},
    file{"four.pts", "5\n6\n1 0 0 0 0\n1 1 0 0 0\n1 0 1 0 0\n1 0 0 1 0\n1 0 0 0 1\n1 1 1 1 1\n"sv},
    file{"equal.pts", "4\n3\n1 2 3 4\n1 2 3 5\n2 4 6 8\n"sv},
    file{"none.pts", "4\n0\n"sv},
    file{"zero.pts", "4\n2\n0 1 2 3\n0 0 0 0\n"sv},
    file{"fractions.pts", "4\n3\n1/2 1/3 -1/5 +7\n-3 2/7 1 0\n11 1 -1/3 2\n"sv},
    file{"more.pts", "4\n2\n1 2 3 4\n1 3 5 8\n1 1 1 1\nand more\n"sv},
    file{"short.pts", "4\n3\n1 2 3 4\n1 2"sv},
    file{"words.pts", "4\n2\n1 2 three 4\n"sv},
    file{"colons.pts", "4\n2\n1:2:3:4\n1:3:4:5\n"sv},
    file{"negative.pts", "4\n-3\n1 2 3 4\n"sv},
    file{"huge.pts", "4\n2000000000\n1 2 3 4\n"sv},
    file{"binary.pts", "4\n2\n1 2 \0\xff 4\n\x01\x1a\n"sv},
    file{"empty.pts", ""sv},
    file{"dimension.pts", "99999999999\n1\n1 2 3 4\n"sv},
    file{"number.pts", "4\n99999999999\n1 2 3 4\n"sv},
    file{"slash.pts", "4\n2\n1 2/ 3 4\n"sv},
    file{"divide.pts", "4\n1\n1 2 3/0 4\n"sv},
};

}  // namespace

void fill_working_folder(const std::filesystem::path& folder) {
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder / "folder");
  for (const file& f : files) std::ofstream(folder / f.name, std::ios::binary) << f.text;
  std::filesystem::create_symlink("loop", folder / "loop");
  std::filesystem::create_symlink("/dev/full", folder / "full");
}

scratch_folder::scratch_folder()
    : path_(std::filesystem::temp_directory_path() /
            ("zep-robustness-" + std::to_string(::getpid()))) {
  std::filesystem::create_directories(path_);
}

scratch_folder::~scratch_folder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace zep::tests
