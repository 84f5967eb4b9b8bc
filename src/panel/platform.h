#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace caleidoscopio {

/// A reading of the wall clock.
struct WallTime {
  int hour = 12;    ///< 0 to 23
  int minute = 0;   ///< 0 to 59
  int second = 0;   ///< 0 to 59
  int year = 2000;  ///< all digits
};

class WallClock {
 public:
  virtual ~WallClock() = default;
  virtual WallTime now() = 0;
};

class Generator {
 public:
  virtual ~Generator() = default;
  /// Takes the seed of the run from the clock's reading.
  virtual void seed(const WallTime& time) = 0;
  /// The next value of the uniform generator, 0 <= r < 1.
  virtual float draw() = 0;
};

/// Whole text files by path. A path without a root is relative to wherever the program says.
class TextFiles {
 public:
  virtual ~TextFiles() = default;
  /// The last candidate root, with a closing separator, that has a default memory; or nothing.
  virtual std::string root() = 0;
  /// The file's bytes, or nothing with the reason in `why`.
  virtual std::optional<std::string> read(const std::string& path, std::string& why) = 0;
  /// Puts `text` in the file's place, whole, or leaves the file as it was and returns false with
  /// the reason in `why`.
  virtual bool write(const std::string& path, const std::string& text, std::string& why) = 0;
};

/// The size of the screen in twips.
struct ScreenSize {
  double width = 15360;
  double height = 11520;
};

/// What a program gives the instrument. The instrument knows no other way to the world.
struct Platform {
  WallClock& clock;
  Generator& generator;
  TextFiles& files;
  ScreenSize screen{};
};

inline constexpr char pathSeparator = static_cast<char>(std::filesystem::path::preferred_separator);

}  // namespace caleidoscopio
