// The yardstick of start_up and instructions: a window of the table's size with one word in it, for a program that
// tells anything needs the toolkit's fonts. With an argument it stays.

#include <QApplication>
#include <QLabel>

#include <optional>

#include "bench/FirstPaint.h"

int main(int argc, char** argv) {
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication app(argc, argv);
  QLabel Window(QStringLiteral("Empty"));
  Window.setFixedSize(391, 513);
  std::optional<FirstPaint> Watch;
  if (argc < 2) Watch.emplace(Window);
  Window.show();
  return QApplication::exec();
}
