#include <cctype>
#include <optional>

#include "damage/damage.h"

namespace caleidoscopio::test {
namespace {

using namespace std::string_view_literals;

/// What a damaged line holds in the place of its value, and what the reader may take it for.
struct Damage {
  std::string name;
  std::string_view line;
  bool isNumber = false;
  bool isFlag = false;
};
void PrintTo(const Damage& damage, std::ostream* out) {
  *out << damage.name;
}

const Damage damages[] = {
    {"Nothing", ""},
    {"Text", "\"Disegno\""},
    {"ANumber", "7", true},
    {"Zero", "0", true},
    {"BelowZero", "-1", true},
    {"TheLargestNumber", "2147483647", true},
    {"TheLeastNumber", "-2147483648", true},
    {"AHugeNumber", "99999999999999999999"},
    {"AFlag", "#TRUE#", false, true},
    {"TheOtherFlag", "#FALSE#", false, true},
    {"AWrongFlag", "#VERO#"},
    {"AQuote", "\""},
    {"QuotesWithinQuotes", "\"say \"7\" twice\""},
    {"BytesThatAreNoText", "\x01\x80\xFF\0\x1B[31m\xC3"sv},
};

/// What a text's property holds after that line.
std::string_view asText(std::string_view line) {
  const bool quoted = line.size() >= 2 && line.front() == '"' && line.back() == '"';
  return quoted ? line.substr(1, line.size() - 2) : line;
}

/// The words with which the reader refuses the line, or nothing where it takes it.
std::optional<std::string> refusal(const ShippedFile& file, std::size_t i, const Damage& damage) {
  const ShippedLine& line = file.lines[i];
  const auto told = [&](const char* expected) {
    return file.path + ", line " + std::to_string(i + 1) + ", " + line.name + ": found '" +
           shown(damage.line) + "'; expected " + expected;
  };
  if (line.holds == Holds::Number && !damage.isNumber) return told("a whole number of 32 bits");
  if (line.holds == Holds::Flag && !damage.isFlag) return told("#TRUE# or #FALSE#");
  return std::nullopt;
}

/// True where a run that ended later names the damaged value: where it was loaded, or in the
/// control that it was copied to.
testing::AssertionResult namesTheCulprit(const std::string& message, const ShippedLine& line,
                                         const Damage& damage) {
  const std::string value = ".Caption is \"" + shown(asText(damage.line)) + '"';
  if (message.find(value) == std::string::npos)
    return testing::AssertionFailure() << "no '" << value << "' in: " << message;
  const std::string control = line.name.substr(0, line.name.rfind('.'));
  const std::size_t at = message.find(value);
  if (message.find(control + value) != std::string::npos) return testing::AssertionSuccess();
  if (at > 0 &&
      (std::isalnum(static_cast<unsigned char>(message[at - 1])) || message[at - 1] == ')'))
    return testing::AssertionSuccess();
  return testing::AssertionFailure() << "no control before '" << value << "' in: " << message;
}

void damageEachLine(const ShippedFile& file, const Damage& damage) {
  int wentOn = 0;
  for (std::size_t i = 0; i < file.lines.size(); i += stride) {
    const ShippedLine& line = file.lines[i];
    std::string text = file.text;
    text.replace(line.at, line.end - line.at, damage.line);
    SCOPED_TRACE(line.name);
    const Run run = runWith(file, text);
    if (const auto expected = refusal(file, i, damage)) {
      EXPECT_EQ(run.end, *expected);
      EXPECT_FALSE(run.started);
    } else if (run.end.empty()) {
      ++wentOn;
    } else {
      EXPECT_TRUE(namesTheCulprit(run.end, line, damage));
    }
  }
  EXPECT_GT(wentOn, 0);
}

struct DamagedLines : testing::TestWithParam<Damage> {};

TEST_P(DamagedLines, OfTheDefaultMemoryAreRefusedOrPlayOn) {
  damageEachLine(defaultMemory(), GetParam());
}

TEST_P(DamagedLines, OfTheListOfNamesAreRefusedOrPlayOn) {
  damageEachLine(namesList(), GetParam());
}

INSTANTIATE_TEST_SUITE_P(By, DamagedLines, testing::ValuesIn(damages),
                         [](const auto& test) { return test.param.name; });

TEST(DamagedLines, AreThoseOfTheFilesAsTheyShip) {
  EXPECT_EQ(defaultMemory().lines.size(), 1869U);
  EXPECT_EQ(namesList().lines.size(), 231U);
  EXPECT_EQ(runWith(defaultMemory(), defaultMemory().text).end, "");
}

}  // namespace
}  // namespace caleidoscopio::test
