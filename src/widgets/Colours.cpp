#include "widgets/Colours.h"

#include <cmath>

namespace blunko {

double Luminance(const QColor& Colour) {
  const auto Linear = [](double Part) {
    return Part <= 0.04045 ? Part / 12.92 : std::pow((Part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * Linear(Colour.redF()) + 0.7152 * Linear(Colour.greenF()) + 0.0722 * Linear(Colour.blueF());
}

double ShadeOf(double Luminance) {
  return Luminance <= 0.0031308 ? Luminance * 12.92 : 1.055 * std::pow(Luminance, 1 / 2.4) - 0.055;
}

QColor BestGround(const QColor& Ink) {
  constexpr double Middle = 0.179;  // as far from black as from white
  return Luminance(Ink) > Middle ? Qt::black : Qt::white;
}

}  // namespace blunko
