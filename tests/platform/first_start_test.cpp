#include "platform/first_start.h"

#include "platform/scratch_folder.h"

namespace caleidoscopio::test {
namespace {

namespace fs = std::filesystem;

class FirstStart : public ScratchFolder {
 protected:
  void SetUp() override {
    ScratchFolder::SetUp();
    put("shipped/Miro-Vel-Ta/Dati/Default.txt", "default");
    put("shipped/Miro-Vel-Ta/Dati/Memorie.txt", "names");
    put("shipped/Miro-Vel-Ta/Save/A.txt", "preset");
    put("shipped/icon.svg", "no memory");
  }
  bool fill() { return fillUserFolder(at("shipped/"), at("user/"), why); }
  std::string why;
};

TEST_F(FirstStart, CopiesAllMemoriesAndNothingElse) {
  ASSERT_TRUE(fill()) << why;
  EXPECT_EQ(textOf("user/Miro-Vel-Ta/Dati/Default.txt"), "default");
  EXPECT_EQ(textOf("user/Miro-Vel-Ta/Dati/Memorie.txt"), "names");
  EXPECT_EQ(textOf("user/Miro-Vel-Ta/Save/A.txt"), "preset");
  EXPECT_EQ(filesIn("user"), 1);
  EXPECT_EQ(filesIn("user/Miro-Vel-Ta/Dati"), 2);
  EXPECT_EQ(filesIn("user/Miro-Vel-Ta/Save"), 1);
}

TEST_F(FirstStart, MakesThePlaceForSavedMemoriesEvenIfNoneIsShipped) {
  fs::remove_all(folder / "shipped/Miro-Vel-Ta/Save");
  ASSERT_TRUE(fill()) << why;
  EXPECT_TRUE(fs::is_directory(folder / "user/Miro-Vel-Ta/Save"));
}

TEST_F(FirstStart, OverwritesNoFile) {
  put("user/Miro-Vel-Ta/Dati/Memorie.txt", "my names");
  ASSERT_TRUE(fill()) << why;
  EXPECT_EQ(textOf("user/Miro-Vel-Ta/Dati/Memorie.txt"), "my names");
  EXPECT_EQ(textOf("user/Miro-Vel-Ta/Dati/Default.txt"), "default");
}

TEST_F(FirstStart, ALinkThatLeadsNowhereIsThereToo) {
  fs::create_directories(folder / "user/Miro-Vel-Ta/Save");
  fs::create_symlink("nowhere", folder / "user/Miro-Vel-Ta/Save/A.txt");
  ASSERT_TRUE(fill()) << why;
  EXPECT_TRUE(fs::is_symlink(folder / "user/Miro-Vel-Ta/Save/A.txt"));
}

TEST_F(FirstStart, AFolderWithADefaultMemoryIsLeftAlone) {
  put("user/Miro-Vel-Ta/Dati/Default.txt", "mine");
  ASSERT_TRUE(fill()) << why;
  EXPECT_EQ(textOf("user/Miro-Vel-Ta/Dati/Default.txt"), "mine");
  EXPECT_EQ(filesIn("user/Miro-Vel-Ta"), 1);
}

TEST_F(FirstStart, ACopyThatBrokeOffIsTakenUpAtTheNextStart) {
  fs::create_directories(folder / "user/Miro-Vel-Ta");
  fs::create_symlink("/proc", folder / "user/Miro-Vel-Ta/Save");  // takes no files
  EXPECT_FALSE(fill());
  EXPECT_EQ(why, at("user/Miro-Vel-Ta/Save/A.txt") + ": No such file or directory");
  EXPECT_FALSE(fs::exists(folder / "user/Miro-Vel-Ta/Dati/Default.txt"));
  fs::remove(folder / "user/Miro-Vel-Ta/Save");
  why.clear();
  ASSERT_TRUE(fill()) << why;
  EXPECT_EQ(textOf("user/Miro-Vel-Ta/Save/A.txt"), "preset");
  EXPECT_EQ(textOf("user/Miro-Vel-Ta/Dati/Default.txt"), "default");
}

TEST_F(FirstStart, TellsWhyTheFolderCannotBeMade) {
  put("user", "a file in its place");
  EXPECT_FALSE(fill());
  EXPECT_EQ(why, at("user/Miro-Vel-Ta/Save") + ": Not a directory");
}

TEST_F(FirstStart, TellsThatNothingIsShipped) {
  fs::remove_all(folder / "shipped");
  EXPECT_FALSE(fill());
  EXPECT_EQ(why, at("shipped/") + ": No such file or directory");
}

}  // namespace
}  // namespace caleidoscopio::test
