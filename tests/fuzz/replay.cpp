// SPDX-License-Identifier: GPL-3.0-or-later
// Runs a fuzz target on the files that are named, for builds without a fuzzer. Fails when the
// target refuses one of them.
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int count, char** names) {
  for (int i = 1; i < count; ++i) {
    std::ifstream file(names[i], std::ios::binary);
    if (!file) {
      std::cerr << "can't open " << names[i] << "\n";
      return 1;
    }
    const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    const auto* const data = reinterpret_cast<const std::uint8_t*>(text.data());
    if (LLVMFuzzerTestOneInput(data, text.size()) != 0) {
      std::cerr << names[i] << " is refused\n";
      return 1;
    }
  }
  return 0;
}
