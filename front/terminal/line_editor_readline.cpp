// SPDX-License-Identifier: GPL-3.0-or-later

#include <readline/history.h>
#include <readline/readline.h>

#include <csetjmp>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <memory>
#include <queue>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "front/terminal/interruption.h"
#include "front/terminal/line_editor.h"

namespace zep::front {

namespace {

// The library calls back without an argument, so what it needs is kept here.
struct state {
  completer complete;
  awaited what = awaited::command;
  completions found;
  // The word of these that is looked at next.
  std::size_t next_word = 0;
  // What has been pasted and is not in the line yet: lines, and what stands behind the last one.
  std::queue<std::string> pasted_lines;
  std::string pasted_piece;
  // While a line is read.
  const held_interrupts* held = nullptr;
  // Where an interrupt leads, out of the library, whatever dialogue of its own that is in.
  std::jmp_buf interrupted = {};
};

state& editor() {
  static state the_editor;
  return the_editor;
}

volatile std::sig_atomic_t continued = 0;

// The line is not on the screen any more after the process has been stopped.
void note_continuation(int /*signal*/) { continued = 1; }

char* next_word(const char* word, int already) {
  std::size_t& next = editor().next_word;
  if (already == 0) next = 0;
  const std::vector<std::string>& words = editor().found.words;
  while (next < words.size()) {
    const std::string& candidate = words[next++];
    // The library frees it.
    if (candidate.starts_with(word)) return ::strdup(candidate.c_str());
  }
  return nullptr;
}

// Names that can be typed: without blanks, and nothing that a shell would replace.
char* next_file(const char* word, int already) {
  if (word[0] == '~') return nullptr;
  while (true) {
    char* const name = ::rl_filename_completion_function(word, already);
    if (name == nullptr || std::strpbrk(name, " \t") == nullptr) return name;
    ::rl_free(name);
    already = 1;
  }
}

char** complete_word(const char* word, int start, int /*end*/) {
  rl_attempted_completion_over = 1;
  const std::string before(rl_line_buffer, static_cast<std::size_t>(start));
  editor().found = editor().complete(editor().what, before);
  if (editor().found.files) return ::rl_completion_matches(word, next_file);
  return ::rl_completion_matches(word, next_word);
}

// Waits for a key. Nothing here or in the library has anything to destroy when an interrupt leads
// out.
int next_key(std::FILE* /*terminal*/) {
  const held_interrupts* const held = editor().held;
  while (held != nullptr) {
    char key = 0;
    const key_event event = held->await_key(key);
    ::rl_check_signals();
    if (take_interrupt()) std::longjmp(editor().interrupted, 1);
    if (continued != 0) {
      continued = 0;
      ::rl_forced_update_display();
    }
    if (event == key_event::key) return static_cast<unsigned char>(key);
    if (event == key_event::end_of_input) break;
  }
  return EOF;
}

// Reads what is pasted up to the mark at its end. Nothing here is destroyed late when an interrupt
// leads out. A terminal sends a carriage return for a line end.
void read_pasted() {
  constexpr std::string_view end_mark = "\x1b[201~";
  std::string& piece = editor().pasted_piece;
  int before = 0;
  while (!piece.ends_with(end_mark)) {
    const int key = ::rl_read_key();
    if (key == EOF) return;
    if (key == '\r' || (key == '\n' && before != '\r')) {
      editor().pasted_lines.push(std::exchange(piece, {}));
    } else if (key != '\n' && key != 0) {
      piece += static_cast<char>(key);
    }
    before = key;
  }
  piece.erase(piece.size() - end_mark.size());
}

std::string next_pasted_line() {
  std::string line = std::move(editor().pasted_lines.front());
  editor().pasted_lines.pop();
  return line;
}

// Puts the piece behind the last pasted line into the line, which can be edited then.
int insert_pasted_piece() {
  ::rl_insert_text(std::exchange(editor().pasted_piece, {}).c_str());
  return 0;
}

// What is pasted is text, whatever its characters do as keys, and each of its lines is like a line
// that is typed: it has its answer behind it. The first one goes into the line that is being
// edited.
int take_paste(int /*count*/, int /*key*/) {
  read_pasted();
  if (editor().pasted_lines.empty()) return insert_pasted_piece();
  ::rl_insert_text(next_pasted_line().c_str());
  rl_redisplay_function();
  return ::rl_newline(1, '\n');
}

void show(const std::string& text) {
  std::fputs(text.c_str(), rl_outstream);
  std::fflush(rl_outstream);
}

// Puts the library in order, and the cursor behind the line that is given up.
void give_up_line() {
  if (RL_ISSTATE(RL_STATE_ISEARCH | RL_STATE_NSEARCH)) {
    ::rl_restore_prompt();
    ::rl_clear_message();
  }
  rl_point = rl_end;
  ::rl_redisplay();
  show("^C\n");
  ::rl_free_line_state();
  ::rl_cleanup_after_signal();
  RL_UNSETSTATE(RL_STATE_ISEARCH | RL_STATE_NSEARCH | RL_STATE_COMPLETING | RL_STATE_MULTIKEY |
                RL_STATE_MOREINPUT | RL_STATE_NUMERICARG | RL_STATE_METANEXT);
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
  // An interrupt is shown behind the line, not where the cursor is.
  ::rl_variable_bind("echo-control-characters", "off");
  rl_startup_hook = insert_pasted_piece;
  ::rl_initialize();
  for (const Keymap keys : {emacs_standard_keymap, vi_insertion_keymap}) {
    ::rl_bind_keyseq_in_map("\\e[200~", take_paste, keys);
  }
  struct sigaction action {};
  action.sa_handler = note_continuation;
  action.sa_flags = SA_RESTART;
  static_cast<void>(::sigaction(SIGCONT, &action, nullptr));
  ::using_history();
}

typed_line read_line(awaited what, const std::string& before_it) {
  const held_interrupts held;
  editor().held = &held;
  editor().what = what;
  if (!editor().pasted_lines.empty()) {
    const std::string line = next_pasted_line();
    show(line + "\n");
    return {typed_line::ending::line, line};
  }
  rl_already_prompted = 1;
  if (setjmp(editor().interrupted) != 0) {
    give_up_line();
    forget_pasted_lines();
    return {typed_line::ending::interrupt, {}};
  }
  const std::unique_ptr<char, free_memory> line(::readline(before_it.c_str()));
  if (line == nullptr) {
    // Where what is pasted is marked, the library ends the line.
    if (std::string_view(::rl_variable_value("enable-bracketed-paste")) != "on") show("\n");
    return {typed_line::ending::end_of_input, {}};
  }
  return {typed_line::ending::line, std::string(line.get())};
}

void forget_pasted_lines() {
  editor().pasted_lines = {};
  editor().pasted_piece.clear();
}

void remember_line(const std::string& line) { ::add_history(line.c_str()); }

void end_editing() { ::clear_history(); }

}  // namespace zep::front
