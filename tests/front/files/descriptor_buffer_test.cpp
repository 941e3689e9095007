// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/files/descriptor_buffer.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <fstream>
#include <istream>
#include <iterator>
#include <ostream>
#include <string>
#include <thread>

#include "tests/front/file_name.h"

namespace zep::tests {
namespace {

// What is longer than any buffer, also than that of a pipe, with a place of its own for each line.
std::string numbered_lines() {
  std::string text;
  for (int i = 0; i < 30000; ++i) text += std::to_string(i) + "\n";
  return text;
}

int opened(const file_name& file, int flags) { return ::open(file.text().c_str(), flags, 0600); }

int created(const file_name& file) { return opened(file, O_WRONLY | O_CREAT | O_TRUNC); }

bool is_closed(int descriptor) { return ::fcntl(descriptor, F_GETFD) == -1; }

std::string rest_of(std::istream& in) {
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::string all_of(int descriptor) {
  descriptor_reader buffer(descriptor);
  std::istream in(&buffer);
  return rest_of(in);
}

struct pipe_ends {
  int reading = -1;
  int writing = -1;
};

pipe_ends new_pipe() {
  std::array<int, 2> ends{};
  EXPECT_EQ(::pipe(ends.data()), 0);
  return {ends[0], ends[1]};
}

// Signals that come again and again, and end whatever waits.
class ticking_clock {
 public:
  ticking_clock() {
    struct sigaction action {};
    action.sa_handler = [](int /*signal*/) {
      const int ticks = ticks_;
      ticks_ = ticks + 1;
    };
    ::sigaction(SIGALRM, &action, &before_);
    ticks_ = 0;
    const itimerval every_millisecond = {{0, 1000}, {0, 1000}};
    ::setitimer(ITIMER_REAL, &every_millisecond, nullptr);
  }
  ~ticking_clock() {
    const itimerval never{};
    ::setitimer(ITIMER_REAL, &never, nullptr);
    ::sigaction(SIGALRM, &before_, nullptr);
  }
  ticking_clock(const ticking_clock&) = delete;
  ticking_clock& operator=(const ticking_clock&) = delete;

  static int ticks() { return ticks_; }

 private:
  static volatile std::sig_atomic_t ticks_;
  struct sigaction before_ {};
};

volatile std::sig_atomic_t ticking_clock::ticks_ = 0;

// Does something at the other end of a pipe, in a thread that gets no signals.
template <class Work>
std::thread undisturbed(Work work) {
  sigset_t all;
  sigset_t before;
  sigfillset(&all);
  ::pthread_sigmask(SIG_SETMASK, &all, &before);
  std::thread thread(work);
  ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
  return thread;
}

void pause_for_a_while() { std::this_thread::sleep_for(std::chrono::milliseconds(5)); }

// Lets files of this process grow up to so many bytes.
class file_size_limit {
 public:
  explicit file_size_limit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit = {bytes, before_.rlim_max};
    EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
  }
  ~file_size_limit() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    static_cast<void>(std::signal(SIGXFSZ, handler_));
  }
  file_size_limit(const file_size_limit&) = delete;
  file_size_limit& operator=(const file_size_limit&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int);
};

TEST(DescriptorReader, ReadsAllOfAFileOfAnyLength) {
  const file_name file;
  for (const std::string& text : {std::string(), std::string("x"), numbered_lines()}) {
    std::ofstream(file.text()) << text;
    EXPECT_EQ(all_of(opened(file, O_RDONLY)), text);
  }
}

TEST(DescriptorReader, ReadsEveryByteAsItIs) {
  const file_name file;
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
  std::ofstream(file.text()) << bytes;
  EXPECT_EQ(all_of(opened(file, O_RDONLY)), bytes);
}

TEST(DescriptorReader, HandsOverWhatIsThereAndWaitsForNoMore) {
  const pipe_ends pipe = new_pipe();
  ASSERT_EQ(::write(pipe.writing, "ab\n", 3), 3);
  descriptor_reader buffer(pipe.reading);
  std::istream in(&buffer);
  std::string line;
  std::getline(in, line);
  EXPECT_EQ(line, "ab");
  ::close(pipe.writing);
  EXPECT_EQ(in.get(), std::istream::traits_type::eof());
}

TEST(DescriptorReader, KnowsHowMuchIsThere) {
  const file_name file;
  std::ofstream(file.text()) << numbered_lines();
  descriptor_reader buffer(opened(file, O_RDONLY));
  std::istream in(&buffer);
  int count = 0;
  for (; buffer.in_avail() > 0; ++count) in.get();
  EXPECT_EQ(count, static_cast<int>(numbered_lines().size()));
  EXPECT_EQ(descriptor_reader(-1).in_avail(), 0);
}

TEST(DescriptorReader, GoesOnAfterASignal) {
  const pipe_ends pipe = new_pipe();
  std::thread writer = undisturbed([&] {
    for (const char* const piece : {"one ", "two ", "three"}) {
      pause_for_a_while();
      descriptor_writer buffer(::dup(pipe.writing));
      std::ostream(&buffer) << piece;
    }
    ::close(pipe.writing);
  });
  const ticking_clock clock;
  EXPECT_EQ(all_of(pipe.reading), "one two three");
  EXPECT_GT(ticking_clock::ticks(), 0);
  writer.join();
}

TEST(DescriptorReader, TakesWhatCantBeReadForEnded) {
  const pipe_ends pipe = new_pipe();
  EXPECT_EQ(all_of(pipe.writing), "");
  ::close(pipe.reading);
  descriptor_reader none(-1);
  EXPECT_FALSE(none.is_open());
  EXPECT_EQ(none.sgetc(), std::streambuf::traits_type::eof());
}

TEST(DescriptorReader, ClosesWhatItRead) {
  const pipe_ends pipe = new_pipe();
  ::close(pipe.writing);
  EXPECT_EQ(all_of(pipe.reading), "");
  EXPECT_TRUE(is_closed(pipe.reading));
}

TEST(DescriptorWriter, WritesAllInOnePieceAndInMany) {
  const file_name file;
  const std::string text = numbered_lines();
  {
    descriptor_writer buffer(created(file));
    std::ostream(&buffer) << text;
    EXPECT_TRUE(buffer.close());
    EXPECT_EQ(file.contents(), text);
  }
  descriptor_writer buffer(created(file));
  std::ostream out(&buffer);
  for (const char c : text) out.put(c);
  EXPECT_TRUE(buffer.close());
  EXPECT_EQ(file.contents(), text);
}

TEST(DescriptorWriter, WritesWhatItHoldsWhenItIsFlushedAndAtItsEnd) {
  const file_name file;
  {
    descriptor_writer buffer(created(file));
    std::ostream out(&buffer);
    out << "one " << std::flush;
    EXPECT_EQ(file.contents(), "one ");
    out << "two";
  }
  EXPECT_EQ(file.contents(), "one two");
}

TEST(DescriptorWriter, ThatIsClosedTakesNothingMore) {
  const file_name file;
  const int descriptor = created(file);
  descriptor_writer buffer(descriptor);
  std::ostream out(&buffer);
  out << "one";
  EXPECT_TRUE(buffer.close());
  EXPECT_FALSE(buffer.is_open());
  EXPECT_TRUE(is_closed(descriptor));
  EXPECT_FALSE(out << "two");
  EXPECT_FALSE(buffer.close());
  EXPECT_EQ(file.contents(), "one");
}

TEST(DescriptorWriter, DropsWhatItHoldsWhenItIsToldTo) {
  const file_name file;
  const int descriptor = created(file);
  descriptor_writer buffer(descriptor);
  std::ostream out(&buffer);
  out << "one" << std::flush << std::string(descriptor_buffer_size - 1, 'x');
  EXPECT_TRUE(buffer.close_unwritten());
  EXPECT_TRUE(is_closed(descriptor));
  EXPECT_EQ(file.contents(), "one");
}

TEST(DescriptorWriter, GoesOnAfterASignalInTheMiddle) {
  const std::string text = numbered_lines();
  const pipe_ends pipe = new_pipe();
  std::string arrived;
  std::thread reader = undisturbed([&] {
    // The pipe is full again and again, and takes less than the writer wants to write.
    std::array<char, 3000> piece{};
    for (ssize_t count = 1; count > 0;) {
      if (arrived.size() < 100000) pause_for_a_while();
      count = ::read(pipe.reading, piece.data(), piece.size());
      arrived.append(piece.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
    ::close(pipe.reading);
  });
  {
    const ticking_clock clock;
    descriptor_writer buffer(pipe.writing);
    std::ostream(&buffer) << text;
    EXPECT_TRUE(buffer.close());
    EXPECT_GT(ticking_clock::ticks(), 0);
  }
  reader.join();
  EXPECT_EQ(arrived, text);
}

TEST(DescriptorWriter, FillsAFileThatMayNotGrowFurtherAndReportsIt) {
  const file_name file;
  const std::string text = numbered_lines();
  const std::size_t allowed = 20001;
  const file_size_limit limit(allowed);
  for (const std::size_t size : {allowed, allowed + 1, text.size()}) {
    descriptor_writer buffer(created(file));
    std::ostream out(&buffer);
    out << text.substr(0, size);
    EXPECT_EQ(out.flush().good(), size == allowed);
    EXPECT_EQ(file.contents(), text.substr(0, allowed));
  }
}

TEST(DescriptorWriter, ReportsWhenItIsClosedThatTheRestCantBeWritten) {
  const pipe_ends pipe = new_pipe();
  descriptor_writer buffer(pipe.reading);
  std::ostream out(&buffer);
  out << 'x';
  EXPECT_TRUE(out);
  EXPECT_FALSE(buffer.close());
  EXPECT_TRUE(is_closed(pipe.reading));
  ::close(pipe.writing);
}

TEST(DescriptorWriter, WithoutADescriptorTakesNothing) {
  descriptor_writer buffer(-1);
  EXPECT_FALSE(buffer.is_open());
  EXPECT_FALSE(std::ostream(&buffer) << 'x');
  EXPECT_FALSE(buffer.close());
}

}  // namespace
}  // namespace zep::tests
