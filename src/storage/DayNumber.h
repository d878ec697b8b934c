#pragma once

#include <QDate>
#include <QString>

namespace blunko {

/// Info file key: the day on which nobody wants to be asked about the high rollers list any more, or `NoDay`.
inline const QString NoQuestionKey = QStringLiteral("NoHS");
inline const QString NoDay = QStringLiteral("Null");

/// A day as the info file writes it: whole days since 30 December 1899.
inline QString DayNumber(const QDate& Day) { return QString::number(QDate(1899, 12, 30).daysTo(Day)); }

}  // namespace blunko
