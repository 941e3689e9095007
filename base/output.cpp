#include "base/output.h"

#include <charconv>

namespace zep::base {

int LL = 80;
std::string Line = std::string(79, '-') + "\n";
int counter = 0;

void set_line_length(int length) {
  LL = length;
  Line = std::string(static_cast<std::size_t>(length) - 1, '-') + "\n";
}

char* write_number(char* to, int n) { return std::to_chars(to, to + longest_number, n).ptr; }

}  // namespace zep::base
