// Where sessions come from.
#pragma once

#include <memory>
#include <streambuf>

#include "front/identifiers.h"
#include "front/options.h"

namespace zep {

// An opened source of a session.
class session_source {
 public:
  // Opens the source. Standard input gets line editing when it and standard output are a terminal,
  // which offers names out of `identifiers`; these must outlive this.
  session_source(const source& s, const identifier_table& identifiers);

  bool is_open() const { return buffer_ != nullptr; }
  // What is typed stands on the screen already.
  bool is_terminal() const { return is_terminal_; }
  // Requires an open source.
  std::streambuf& buffer() { return *buffer_; }

 private:
  std::unique_ptr<std::streambuf> buffer_;
  bool is_terminal_ = false;
};

}  // namespace zep
