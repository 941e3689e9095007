// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/commands/completion.h"

#include <iterator>
#include <sstream>
#include <string_view>

#include "front/commands/command.h"

namespace zep::front {

namespace {

std::vector<std::string> words_of(const std::string& text) {
  std::istringstream words(text);
  return {std::istream_iterator<std::string>(words), std::istream_iterator<std::string>()};
}

void append_commands(std::vector<std::string>& words) {
  for (const command_record& c : command) words.emplace_back(c.name);
}

bool takes_file(const command_record& c) {
  return std::string_view(c.arguments).find("FILE") != std::string_view::npos;
}

}  // namespace

completions complete(const identifier_table& identifiers, awaited what, const std::string& before) {
  if (what == awaited::file_name) return {{}, before.empty()};
  if (what != awaited::command) return {};
  const std::vector<std::string> typed = words_of(before);
  if (typed.empty()) {
    std::vector<std::string> words = identifiers.names();
    append_commands(words);
    return {std::move(words)};
  }
  const command_record* const todo = find_command(typed.front());
  if (todo == nullptr) return {};
  if (typed.size() == 1 && todo->kind != command_kind::nothing) return {identifiers.names()};
  return {{}, typed.size() == 2 && takes_file(*todo)};
}

}  // namespace zep::front
