#include "plot.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace caleidoscopio::bench {

namespace {

// A plot's box and its room, in the picture's units.
constexpr double width = 360, height = 260, left = 70, top = 40, right = 30, below = 60;
constexpr double whole = left + width + right;

/// Where an axis ends, at a round number with no value beyond it, and in how many round parts.
struct Axis {
  double end;
  int parts;
};

Axis axisFor(double most) {
  const double decade = std::pow(10, std::floor(std::log10(most)));
  for (const Axis axis : {Axis{1, 5}, {1.5, 3}, {2, 4}, {3, 3}, {4, 4}, {5, 5}, {6, 3}, {8, 4}})
    if (most <= axis.end * decade) return {axis.end * decade, axis.parts};
  return {10 * decade, 5};
}

class Picture {
 public:
  explicit Picture(std::FILE& file) : file_(file) {}

  void text(double x, double y, const char* anchor, const std::string& words,
            const char* more = "") const {
    std::fprintf(&file_, "<text x=\"%.1f\" y=\"%.1f\" text-anchor=\"%s\"%s>%s</text>\n", x, y,
                 anchor, more, words.c_str());
  }
  void line(double x1, double y1, double x2, double y2, const char* colour) const {
    std::fprintf(&file_, "<line x1=\"%.1f\" y1=\"%.1f\" x2=\"%.1f\" y2=\"%.1f\" stroke=\"%s\"/>\n",
                 x1, y1, x2, y2, colour);
  }
  void draw(const Plot& plot, double from) const;

 private:
  std::FILE& file_;
};

std::string number(double value) {
  char digits[32];
  std::snprintf(digits, sizeof digits, "%g", value);
  return digits;
}

void Picture::draw(const Plot& plot, double from) const {
  double mostX = 0, mostY = 0;
  for (const Series& series : plot.series)
    for (const Point& point : series.points) {
      mostX = std::max(mostX, point.x);
      mostY = std::max(mostY, point.y);
    }
  const Axis axisX = axisFor(mostX), axisY = axisFor(mostY);
  const double x0 = from + left, y0 = top + height;
  const auto across = [&](double x) { return x0 + x / axisX.end * width; };
  const auto up = [&](double y) { return y0 - y / axisY.end * height; };
  text(x0 + width / 2, top - 16, "middle", plot.title, " font-weight=\"bold\"");
  for (int mark = 0; mark <= axisY.parts; ++mark) {
    const double y = axisY.end * mark / axisY.parts;
    line(x0, up(y), x0 + width, up(y), "#dddddd");
    text(x0 - 6, up(y) + 4, "end", number(y));
  }
  for (int mark = 0; mark <= axisX.parts; ++mark) {
    const double x = axisX.end * mark / axisX.parts;
    text(across(x), y0 + 18, "middle", number(x));
  }
  line(x0, y0, x0 + width, y0, "black");
  line(x0, y0, x0, top, "black");
  text(x0 + width / 2, y0 + 42, "middle", plot.across);
  text(x0 + 6, top - 2, "start", plot.up);
  double key = top + 16;
  for (const Series& series : plot.series) {
    std::fprintf(&file_, "<polyline fill=\"none\" stroke-width=\"2\" stroke=\"%s\" points=\"",
                 series.colour.c_str());
    for (const Point& point : series.points)
      std::fprintf(&file_, "%.1f,%.1f ", across(point.x), up(point.y));
    std::fputs("\"/>\n", &file_);
    for (const Point& point : series.points)
      std::fprintf(&file_, "<circle cx=\"%.1f\" cy=\"%.1f\" r=\"3\" fill=\"%s\"/>\n",
                   across(point.x), up(point.y), series.colour.c_str());
    text(x0 + 14, key, "start", series.name, (" fill=\"" + series.colour + "\"").c_str());
    key += 16;
  }
}

}  // namespace

bool draw(const std::vector<Plot>& plots, const std::string& file) {
  std::FILE* out = std::fopen(file.c_str(), "w");
  if (!out) return false;
  const double size = whole * static_cast<double>(plots.size());
  std::fprintf(out,
               "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%.0f\" height=\"%.0f\" "
               "font-family=\"sans-serif\" font-size=\"12\">\n"
               "<rect width=\"100%%\" height=\"100%%\" fill=\"white\"/>\n",
               size, top + height + below);
  for (std::size_t i = 0; i < plots.size(); ++i)
    Picture(*out).draw(plots[i], whole * static_cast<double>(i));
  std::fputs("</svg>\n", out);
  const bool written = std::ferror(out) == 0;
  return std::fclose(out) == 0 && written;
}

}  // namespace caleidoscopio::bench
