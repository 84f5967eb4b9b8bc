#include "damage/damage.h"

namespace caleidoscopio::test {
namespace {

std::string endsTooSoon(const ShippedFile& file, std::size_t missing) {
  return file.path + ", line " + std::to_string(missing + 1) + ", " + file.lines[missing].name +
         ": the file ends here; expected " + std::to_string(file.lines.size()) + " lines";
}

void cutBeforeEachLine(const ShippedFile& file) {
  for (std::size_t i = 0; i < file.lines.size(); i += stride)
    EXPECT_EQ(runWith(file, file.text.substr(0, file.lines[i].at)).end, endsTooSoon(file, i));
}

/// What is left of the line counts as its value; then the file ends one line later, unless the
/// rest is no value any more.
void cutWithinEachLine(const ShippedFile& file) {
  for (std::size_t i = 0; i < file.lines.size(); i += stride) {
    const ShippedLine& line = file.lines[i];
    if (line.end - line.at < 2) continue;
    SCOPED_TRACE(line.name);
    const std::size_t middle = (line.at + line.end) / 2;
    const Run run = runWith(file, file.text.substr(0, middle));
    const std::string left = file.text.substr(line.at, middle - line.at);
    const std::string refused = file.path + ", line " + std::to_string(i + 1) + ", " + line.name +
                                ": found '" + left + "'; expected ";
    const bool last = i + 1 == file.lines.size();
    if (line.holds == Holds::Flag || left == "-") {
      EXPECT_EQ(run.end.substr(0, refused.size()), refused);
    } else if (!last) {
      EXPECT_EQ(run.end, endsTooSoon(file, i + 1));
    }
  }
}

/// A cut in the middle of the two bytes that end a line leaves the line whole.
void cutWithinEachLinesEnd(const ShippedFile& file) {
  for (std::size_t i = 0; i + 1 < file.lines.size(); i += stride)
    EXPECT_EQ(runWith(file, file.text.substr(0, file.lines[i].end + 1)).end,
              endsTooSoon(file, i + 1));
  EXPECT_EQ(runWith(file, file.text.substr(0, file.lines.back().end + 1)).end, "");
}

TEST(CutFiles, ADefaultMemoryThatEndsBeforeALineIsRefused) {
  cutBeforeEachLine(defaultMemory());
}
TEST(CutFiles, ADefaultMemoryThatEndsWithinALineIsRefused) {
  cutWithinEachLine(defaultMemory());
}
TEST(CutFiles, ADefaultMemoryThatEndsWithinALinesEndIsRefusedButForTheLast) {
  cutWithinEachLinesEnd(defaultMemory());
}
TEST(CutFiles, AListOfNamesThatEndsBeforeALineIsRefused) {
  cutBeforeEachLine(namesList());
}
TEST(CutFiles, AListOfNamesThatEndsWithinALineIsRefused) {
  cutWithinEachLine(namesList());
}
TEST(CutFiles, AListOfNamesThatEndsWithinALinesEndIsRefusedButForTheLast) {
  cutWithinEachLinesEnd(namesList());
}

}  // namespace
}  // namespace caleidoscopio::test
