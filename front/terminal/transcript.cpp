// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/terminal/transcript.h"

namespace zep::front {

repeated_input::int_type repeated_input::underflow() {
  if (gptr() < egptr()) return traits_type::to_int_type(*gptr());
  line_.clear();
  int_type c = source_.sbumpc();
  for (; c != traits_type::eof() && c != '\n'; c = source_.sbumpc()) {
    line_ += traits_type::to_char_type(c);
  }
  if (c == traits_type::eof() && line_.empty()) return c;
  to_ << line_ << '\n' << std::flush;
  if (c == '\n') line_ += '\n';
  setg(line_.data(), line_.data(), line_.data() + line_.size());
  return traits_type::to_int_type(*gptr());
}

doubled_output::doubled_output(std::ostream& stream, std::ostream& second)
    : stream_(stream), first_(*stream.rdbuf()), second_(second) {
  stream_.rdbuf(this);
}

// Setting the buffer would make a stream good again that can't write any more.
doubled_output::~doubled_output() {
  const std::ios::iostate state = stream_.rdstate();
  stream_.rdbuf(&first_);
  stream_.setstate(state);
}

doubled_output::int_type doubled_output::overflow(int_type c) {
  if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
  second_.put(traits_type::to_char_type(c));
  return first_.sputc(traits_type::to_char_type(c));
}

std::streamsize doubled_output::xsputn(const char* text, std::streamsize count) {
  second_.write(text, count);
  return first_.sputn(text, count);
}

int doubled_output::sync() { return second_.flush() && first_.pubsync() == 0 ? 0 : -1; }

}  // namespace zep::front
