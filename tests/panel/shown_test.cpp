#include "panel/shown.h"

#include <gtest/gtest.h>

namespace caleidoscopio::test {
namespace {

using namespace std::string_view_literals;

TEST(Shown, PlainTextStandsAsItIs) {
  EXPECT_EQ(shown(""), "");
  EXPECT_EQ(shown("say \"più\", 7"), "say \"più\", 7");
}

TEST(Shown, WhatATerminalWouldObeyIsWrittenOut) {
  EXPECT_EQ(shown("a\0b\x1B[31m\n\x7F"sv), "a\\x00b\\x1B[31m\\x0A\\x7F");
}

TEST(Shown, OfALongValueTheBeginningIsShown) {
  EXPECT_EQ(shown(std::string(80, 'x')), std::string(80, 'x'));
  EXPECT_EQ(shown(std::string(81, 'x')), std::string(80, 'x') + "...");
}

TEST(Shown, NoLetterIsCutInTwo) {
  EXPECT_EQ(shown(std::string(79, 'x') + "è tutto"), std::string(79, 'x') + "...");
  EXPECT_EQ(shown(std::string(78, 'x') + "è tutto"), std::string(78, 'x') + "è...");
}

TEST(Shown, BytesThatAreNoLettersAreWrittenOut) {
  EXPECT_EQ(shown("\x80\xFF"), "\\x80\\xFF");
  EXPECT_EQ(shown("\xC3"), "\\xC3") << "a letter that breaks off";
  EXPECT_EQ(shown("\xC3("), "\\xC3(") << "a letter that does not go on";
  EXPECT_EQ(shown("\xC0\xAF"), "\\xC0\\xAF") << "a form longer than need be";
  EXPECT_EQ(shown("\xED\xA0\x80"), "\\xED\\xA0\\x80") << "half of a pair";
  EXPECT_EQ(shown("\xF4\x90\x80\x80"), "\\xF4\\x90\\x80\\x80") << "beyond the last letter";
  EXPECT_EQ(shown("\xC2\x9B"), "\\xC2\\x9B") << "a terminal's control beyond ASCII";
  EXPECT_EQ(shown("\u20AC\U0001F3A8"), "\u20AC\U0001F3A8");
}

TEST(Shown, OfBytesThatAreNoLettersEachCountsOnce) {
  std::string written;
  for (int i = 0; i < 80; ++i) written += "\\x80";
  EXPECT_EQ(shown(std::string(200, '\x80')), written + "...");
}

}  // namespace
}  // namespace caleidoscopio::test
