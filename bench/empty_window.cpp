// The yardstick of bench/start_up: an empty window of the table's size.

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication app(argc, argv);
  QWidget Window;
  Window.setWindowTitle(QStringLiteral("Empty"));
  Window.setFixedSize(393, 513);
  Window.show();
  return QApplication::exec();
}
