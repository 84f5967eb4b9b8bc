#pragma once

#include <string>
#include <vector>

namespace caleidoscopio::bench {

struct Point {
  double x, y;
};

struct Series {
  std::string name;
  std::string colour;
  std::vector<Point> points;
};

/// Lines over two axes that both begin at 0.
struct Plot {
  std::string title, across, up;
  std::vector<Series> series;
};

/// Draws plots side by side into an SVG file; false if it could not be written.
bool draw(const std::vector<Plot>& plots, const std::string& file);

}  // namespace caleidoscopio::bench
