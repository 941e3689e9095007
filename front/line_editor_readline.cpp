#include <readline/history.h>
#include <readline/readline.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "front/interruption.h"
#include "front/line_editor.h"

namespace zep {

namespace {

// The library calls back without an argument, so what it needs is kept here.
struct state {
  completer complete;
  std::string prompt;
  completions found;
  // While a line is read.
  const held_interrupts* held = nullptr;
  bool interrupted = false;
};

state& editor() {
  static state the_editor;
  return the_editor;
}

char* next_word(const char* word, int already) {
  static std::size_t next = 0;
  if (already == 0) next = 0;
  const std::vector<std::string>& words = editor().found.words;
  while (next < words.size()) {
    const std::string& candidate = words[next++];
    // The library frees it.
    if (candidate.starts_with(word)) return ::strdup(candidate.c_str());
  }
  return nullptr;
}

char** complete_word(const char* word, int start, int /*end*/) {
  rl_attempted_completion_over = 1;
  const std::string before(rl_line_buffer, static_cast<std::size_t>(start));
  editor().found = editor().complete(editor().prompt, before);
  return ::rl_completion_matches(
      word, editor().found.files ? ::rl_filename_completion_function : next_word);
}

// Waits for a key. An interrupt counts as the end of the line, which is dropped then.
int next_key(std::FILE* /*terminal*/) {
  const held_interrupts* const held = editor().held;
  while (held != nullptr) {
    held->wait_for_key();
    ::rl_check_signals();
    if (take_interrupt()) {
      editor().interrupted = true;
      return '\n';
    }
    unsigned char key = 0;
    const ssize_t count = ::read(STDIN_FILENO, &key, 1);
    if (count == 1) return key;
    if (count == 0 || (errno != EINTR && errno != EAGAIN)) break;
  }
  return EOF;
}

struct free_memory {
  void operator()(char* text) const { ::rl_free(text); }
};

}  // namespace

void start_editing(const completer& complete) {
  editor().complete = complete;
  rl_readline_name = "zep";
  rl_getc_function = next_key;
  rl_attempted_completion_function = complete_word;
  rl_completer_word_break_characters = " \t";
  ::using_history();
}

typed_line read_line(const std::string& prompt) {
  const held_interrupts held;
  editor().held = &held;
  editor().prompt = prompt;
  editor().interrupted = false;
  rl_already_prompted = 1;
  const std::unique_ptr<char, free_memory> line(::readline(prompt.c_str()));
  if (editor().interrupted) return {typed_line::ending::interrupt, {}};
  if (line == nullptr) return {typed_line::ending::end_of_input, {}};
  return {typed_line::ending::line, std::string(line.get())};
}

void remember_line(const std::string& line) { ::add_history(line.c_str()); }

void end_editing() { ::clear_history(); }

}  // namespace zep
