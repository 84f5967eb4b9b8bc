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

TEST(Shown, BytesThatAreNoLettersAreCutAllTheSame) {
  EXPECT_EQ(shown(std::string(200, '\x80')), std::string(77, '\x80') + "...");
}

}  // namespace
}  // namespace caleidoscopio::test
