#include "front/commands/completion.h"

#include <iterator>
#include <sstream>
#include <string_view>

#include "front/commands/command.h"
#include "front/terminal/prompt.h"

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

completions complete(const identifier_table& identifiers, const std::string& prompt,
                     const std::string& before) {
  if (prompt == filename_prompt) return {{}, before.empty()};
  if (prompt != command_prompt) return {};
  const std::vector<std::string> typed = words_of(before);
  if (typed.empty()) {
    std::vector<std::string> words = identifiers.names();
    append_commands(words);
    return {std::move(words)};
  }
  const int c = find_command(typed.front());
  if (c < 0) return {};
  const command_record& todo = command[c];
  if (typed.size() == 1 && todo.kind != command_kind::nothing) return {identifiers.names()};
  return {{}, typed.size() == 2 && takes_file(todo)};
}

}  // namespace zep::front
