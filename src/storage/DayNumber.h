#pragma once

#include <QDate>
#include <QString>

namespace blunko {

/// A day as the info file writes it: whole days since 30 December 1899.
inline QString DayNumber(const QDate& Day) { return QString::number(QDate(1899, 12, 30).daysTo(Day)); }

}  // namespace blunko
