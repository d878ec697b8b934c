#pragma once

#include <QString>

#include <cstdint>

namespace blunko {

/// The number that the text begins with, rounded to 16 bits; 0 when there is none, or none that fits.
std::int16_t LeadingNumber(const QString& Text);

}  // namespace blunko
