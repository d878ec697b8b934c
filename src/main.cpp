#include <QApplication>
#include <QIcon>
#include <QLoggingCategory>
#include <QTimer>

#include "app/Application.h"

namespace {

/// Drawing the icon costs a tenth of the start: the window doesn't wait for it.
constexpr int IconDelay = 50;  // ms

}  // namespace

int main(int argc, char** argv) {
  // The game places its windows beside each other, which Wayland forbids: prefer the other way in where there is one.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && qEnvironmentVariableIsSet("WAYLAND_DISPLAY") &&
      qEnvironmentVariableIsSet("DISPLAY")) {
    qputenv("QT_QPA_PLATFORM", "xcb");
  }
  QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio.*=false"));  // a broken picture is no news
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("TollmoorBlunko"));
  QApplication::setDesktopFileName(QStringLiteral("tollmoor-blunko"));
  QTimer::singleShot(IconDelay, [] { QApplication::setWindowIcon(QIcon(QStringLiteral(":/art/icon.svg"))); });
  QApplication::setQuitOnLastWindowClosed(false);

  blunko::Application Program(blunko::Folders::OfProgram());
  return Program.Main() ? QApplication::exec() : 0;
}
