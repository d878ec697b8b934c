// The yardstick of start_up and instructions: an empty window of the table's size. With an argument it stays.

#include <QApplication>

#include <optional>

#include "bench/FirstPaint.h"

int main(int argc, char** argv) {
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication app(argc, argv);
  QWidget Window;
  Window.setFixedSize(391, 513);
  std::optional<FirstPaint> Watch;
  if (argc < 2) Watch.emplace(Window);
  Window.show();
  return QApplication::exec();
}
