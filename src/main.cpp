#include <QApplication>
#include <QImageReader>
#include <QLoggingCategory>

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

#include "app/Application.h"
#include "app/OpenInShell.h"
#include "app/Scale.h"
#include "widgets/HeldKeys.h"
#include "widgets/Materials.h"
#include "widgets/X11.h"

namespace {

/// Without any way in the toolkit gives up: that is told to the player, also to one who came from a menu. Why one of
/// several ways is closed is no news.
void TellNoWayIn(QtMsgType Type, const QMessageLogContext&, const QString&) {
  if (Type != QtFatalMsg) return;
  constexpr const char* Told = "Tollmoor Blunko finds no screen to show its table on.";
  std::fprintf(stderr, "%s\n", Told);
  if (isatty(STDERR_FILENO) == 0 && fork() == 0) execlp("notify-send", "notify-send", Told, nullptr);
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

int main(int argc, char** argv) {
  // The game places its windows beside each other, which Wayland forbids: prefer the other way in where there is one.
  const bool PrefersX11 = !qEnvironmentVariableIsSet("QT_QPA_PLATFORM") &&
                          qEnvironmentVariableIsSet("WAYLAND_DISPLAY") && qEnvironmentVariableIsSet("DISPLAY");
  if (PrefersX11) qputenv("QT_QPA_PLATFORM", "xcb;wayland");
  QImageReader::setAllocationLimit(64);  // MB of a background, decoded as small as can be, but not yet stretched
  // A broken picture is no news, nor is a reader that asks for a window when it has gone.
  QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio.*=false\nqt.accessibility.atspi=false"));
  const blunko::Folders Where = blunko::Folders::OfProgram();
  const blunko::IniInfo Info(Where.InfoPath());
  const int Scale = blunko::ReadScale(Info);
  qInstallMessageHandler(TellNoWayIn);
  blunko::ScaleWindows(Scale, argc, argv);
  QApplication::setAttribute(Qt::AA_DontCreateNativeWidgetSiblings);  // what is done to the table's frame covers them
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication app(argc, argv);
  qInstallMessageHandler(nullptr);
  // A browser that the game opens chooses for itself.
  QStringList Kept;
  if (PrefersX11) Kept << QStringLiteral("QT_QPA_PLATFORM");
  if (Scale != 100) Kept << QStringLiteral("QT_SCALE_FACTOR");
  const blunko::KeptVariables Shell(Kept);
  const blunko::HeldKeys Keys(!blunko::HearKeysReleasedOnce());
  blunko::RingStandardControls();
  QApplication::setApplicationName(QStringLiteral("TollmoorBlunko"));
  QApplication::setDesktopFileName(QStringLiteral("tollmoor-blunko"));
  QApplication::setQuitOnLastWindowClosed(false);

  blunko::Application Program(Where, Info);
  return Program.Main() ? QApplication::exec() : 0;
}
