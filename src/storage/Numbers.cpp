#include "storage/Numbers.h"

#include <charconv>
#include <cmath>

namespace blunko {

std::int16_t LeadingNumber(const QString& Text) {
  QByteArray Bytes = Text.trimmed().toLatin1();
  if (Bytes.startsWith('+')) Bytes.remove(0, 1);
  double Value = 0;
  std::from_chars(Bytes.cbegin(), Bytes.cend(), Value);
  Value = std::nearbyint(Value);
  return Value >= INT16_MIN && Value <= INT16_MAX ? static_cast<std::int16_t>(Value) : std::int16_t{0};
}

}  // namespace blunko
