// The console's language: a script from anywhere, with files in memory.
#include <algorithm>
#include <charconv>
#include <istream>
#include <sstream>
#include <streambuf>

#include "console/script.h"
#include "console/words.h"
#include "fuzz/stage.h"

namespace {

using namespace caleidoscopio;
using namespace caleidoscopio::fuzz;

/// Takes all and keeps nothing.
struct Nowhere : std::streambuf {
  int overflow(int c) override { return traits_type::not_eof(c); }
  std::streamsize xsputn(const char*, std::streamsize n) override { return n; }
};

constexpr int mostLines = 200;
constexpr std::uint64_t longestRun = 5'000;  // of virtual time, in milliseconds

/// A script may ask for any stretch of time; here it gets so little that the clock on the wall
/// tells a loop without an end from one that is only long.
std::string shortened(std::string_view script) {
  std::string text;
  std::uint64_t left = longestRun;
  for (int n = 0; n < mostLines && !script.empty(); ++n) {
    const std::string_view written = script.substr(0, script.find('\n'));
    script.remove_prefix(std::min(written.size() + 1, script.size()));
    const console::Line line(written);
    const bool moves = line.command == "advance" || line.command == "flashes";
    if (moves && line.words.size() == 1) {
      std::uint64_t ms = 0;
      const std::string_view word = line.words[0].substr(0, line.words[0].find('\r'));
      const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), ms);
      if (error == std::errc() && end == word.data() + word.size()) {
        ms = std::min(ms, left);
        left -= ms;
        text += std::string(line.command) + ' ' + std::to_string(ms) + '\n';
        continue;
      }
    }
    text += std::string(written) + '\n';
  }
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FilesInMemory files;
  files.files = shippedFiles();
  Nowhere nowhere;
  std::ostream out(&nowhere);
  std::ostringstream errors;
  console::Session session(files, out);
  session.clock.standing = WallTime{12, 0, 0, 2026};
  session.generator.builtIn.fixSeed(1);
  std::istringstream script(shortened({reinterpret_cast<const char*>(data), size}));
  const console::Status status = console::runScript(session, script, errors);
  const std::string said = errors.str();
  const bool as_told = status == console::done       ? said.empty()
                       : status == console::runEnded ? said.starts_with("run ended: ")
                                                     : said.starts_with("line ");
  if (!as_told) finding("status " + std::to_string(status) + " and \"" + said + '"');
  return 0;
}
