// The yardstick of start_up and instructions: an empty window of the table's size. With an argument it stays.

#include <QApplication>

#include "bench/FirstPaint.h"

int main(int argc, char** argv) {
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication app(argc, argv);
  QWidget Window;
  Window.setFixedSize(391, 513);
  const FirstPaint Watch(Window);
  if (argc > 1) Window.removeEventFilter(const_cast<FirstPaint*>(&Watch));
  Window.show();
  return QApplication::exec();
}
