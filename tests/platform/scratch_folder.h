#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace caleidoscopio::test {

/// A folder of the test's own, removed at its end.
class ScratchFolder : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string name = (std::filesystem::temp_directory_path() / "caleidoscopio-XXXXXX").string();
    ASSERT_NE(mkdtemp(name.data()), nullptr);
    folder = name;
  }
  void TearDown() override { std::filesystem::remove_all(folder); }

  /// A path below the folder, as text.
  std::string at(const std::string& path) const { return (folder / path).string(); }
  void put(const std::string& path, const std::string& text) const {
    std::filesystem::create_directories((folder / path).parent_path());
    std::ofstream(folder / path, std::ios::binary) << text;
  }
  std::string textOf(const std::string& path) const {
    std::ifstream file(folder / path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::ptrdiff_t filesIn(const std::string& path) const {
    const std::filesystem::directory_iterator entries(folder / path);
    return std::distance(begin(entries), end(entries));
  }

  std::filesystem::path folder;
};

}  // namespace caleidoscopio::test
