// Reads fields as the console prints them, each after a line "= TITLE", and draws them as one
// picture: contact_sheet COLUMNS FILE.png <fields.txt

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <cstdio>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "desktop/looks.h"
#include "mosaic/index_map.h"
#include "mosaic/palette.h"

namespace {

using caleidoscopio::side;

struct Tile {
  std::string title;
  std::vector<int> swatches;
};

std::vector<Tile> readTiles(std::istream& in) {
  std::vector<Tile> tiles;
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with("= ")) {
      tiles.push_back({line.substr(2), {}});
    } else if (!tiles.empty()) {
      std::istringstream row(line);
      for (int swatch = 0; row >> swatch;) tiles.back().swatches.push_back(swatch);
    }
  }
  return tiles;
}

constexpr int cell = 8, gap = 16, letters = 20;
constexpr int tileSide = side * cell;

void draw(QPainter& painter, const Tile& tile, QPoint corner) {
  painter.setPen(Qt::white);
  painter.drawText(QRect(corner, QSize(tileSide, letters)), Qt::AlignCenter,
                   painter.fontMetrics().elidedText(QString::fromStdString(tile.title),
                                                    Qt::ElideRight, tileSide));
  for (std::size_t n = 0; n < tile.swatches.size(); ++n) {
    const int row = static_cast<int>(n) / side;
    const int column = static_cast<int>(n) % side;
    const auto swatch = static_cast<std::size_t>(tile.swatches[n]);
    painter.fillRect(corner.x() + column * cell, corner.y() + letters + row * cell, cell, cell,
                     caleidoscopio::toScreen(caleidoscopio::palette.at(swatch).colour));
  }
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  const std::vector<Tile> tiles = readTiles(std::cin);
  const int columns = argc == 3 ? std::atoi(argv[1]) : 0;
  if (columns < 1 || tiles.empty()) {
    std::fputs("usage: contact_sheet COLUMNS FILE.png <fields.txt\n", stderr);
    return 2;
  }
  for (const Tile& tile : tiles)
    if (tile.swatches.size() != static_cast<std::size_t>(side * side)) {
      std::fprintf(stderr, "contact_sheet: %s has no whole field\n", tile.title.c_str());
      return 1;
    }
  const int rows = (static_cast<int>(tiles.size()) + columns - 1) / columns;
  QImage sheet(gap + columns * (tileSide + gap), gap + rows * (tileSide + letters + gap),
               QImage::Format_RGB32);
  sheet.fill(QColor(24, 24, 28));
  QPainter painter(&sheet);
  painter.setFont(caleidoscopio::lettersOf({9}));
  for (std::size_t n = 0; n < tiles.size(); ++n) {
    const int at = static_cast<int>(n);
    draw(painter, tiles[n],
         {gap + at % columns * (tileSide + gap), gap + at / columns * (tileSide + letters + gap)});
  }
  painter.end();
  return sheet.save(QString::fromUtf8(argv[2])) ? 0 : 1;
}
