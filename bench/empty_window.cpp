// The yardstick of start_up: an empty window of the table's size.

#include <QApplication>

#include "bench/FirstPaint.h"

int main(int argc, char** argv) {
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication app(argc, argv);
  QWidget Window;
  Window.setFixedSize(393, 513);
  const FirstPaint Watch(Window);
  Window.show();
  return QApplication::exec();
}
