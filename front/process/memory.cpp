// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/process/memory.h"

#include <gmp.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

#include "front/files/files.h"

namespace zep::front {

namespace {

constexpr int exhausted = 10;

// The multiprecision library's allocations, led through `new` and so through its handler.
void* allocate(std::size_t size) { return ::operator new(size); }

void release(void* block, std::size_t /*size*/) { ::operator delete(block); }

void* reallocate(void* old, std::size_t old_size, std::size_t size) {
  void* const block = allocate(size);
  std::memcpy(block, old, std::min(old_size, size));
  release(old, old_size);
  return block;
}

}  // namespace

void mem_warn() {
  result_file::abandon();
  // Memory may end while the standard streams are still set up.
  std::fputs("\nNew: can't allocate enough memory\n", stderr);
  std::exit(exhausted);
}

void install_mem_warn() {
  std::set_new_handler(mem_warn);
  mp_set_memory_functions(allocate, reallocate, release);
}

}  // namespace zep::front
