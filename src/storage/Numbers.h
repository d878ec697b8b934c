#pragma once

#include <QDate>
#include <QString>

#include <cstdint>

namespace blunko {

/// The number that the text begins with, rounded to 16 bits; 0 when there is none, or none that fits.
std::int16_t LeadingNumber(const QString& Text);

/// A day as the info file writes it: whole days since 30 December 1899.
inline QString DayNumber(const QDate& Day) { return QString::number(QDate(1899, 12, 30).daysTo(Day)); }

}  // namespace blunko
