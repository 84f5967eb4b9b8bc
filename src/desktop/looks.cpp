#include "desktop/looks.h"

#include <QGuiApplication>
#include <QScreen>
#include <QtMath>

namespace caleidoscopio {

QColor toScreen(Colour colour) {
  struct SystemColour {
    std::uint32_t number;
    QRgb rgb;
  };
  // Fixed, so that a picture is the same on every desktop.
  static constexpr SystemColour systemColours[] = {
      {0x80000005, 0xFFFFFFFF},  // window ground
      {0x80000008, 0xFF000000},  // window letters
      {0x8000000F, 0xFFE9E6DC},  // button face
      {0x80000012, 0xFF000000},  // button letters
  };
  constexpr std::uint32_t ofTheSystem = 0x80000000;
  if ((colour.value & ofTheSystem) != 0)
    for (const SystemColour& system : systemColours)
      if (system.number == colour.value) return QColor::fromRgb(system.rgb);
  return QColor(static_cast<int>(colour.value & 0xFF), static_cast<int>(colour.value >> 8 & 0xFF),
                static_cast<int>(colour.value >> 16 & 0xFF));
}

QFont lettersOf(Points size, bool bold) {
  QFont font;
  font.setFamilies({QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
  const QScreen* screen = QGuiApplication::primaryScreen();
  const double dotsPerInch = screen ? screen->logicalDotsPerInchY() : 96;
  font.setPointSizeF(std::max(1.0, size.value * 96 / dotsPerInch));
  font.setBold(bold);
  return font;
}

QRect toPixels(Twips left, Twips top, Twips width, Twips height) {
  const auto edge = [](Twips at) { return qRound(at.value / twipsToPixel); };
  return {QPoint(edge(left), edge(top)), QPoint(edge(left + width) - 1, edge(top + height) - 1)};
}

QRect toPixels(const Geometry& g) {
  return toPixels(g.Left, g.Top, g.Width, g.Height);
}

}  // namespace caleidoscopio
