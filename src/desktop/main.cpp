#include <QApplication>

#include "desktop/desktop_host.h"
#include "desktop/display.h"
#include "ui/program.h"

int main(int, char** argv) {
  int argc = 1;  // the game has no options, and Qt must not read its own ones either
  // Use the session's message bus or none. Otherwise Qt starts one for this game with its first
  // window, and waits for it: for seconds, if the display is lost meanwhile.
  if (qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS"))
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:runtime=yes");
  ReportMissingDisplay();
  QApplication application(argc, argv);
  ReportLostDisplay();
  QApplication::setDesktopFileName("velmoran");
  // Not earlier: the platform plugin would switch it on again.
  QApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);

  DesktopHost host;
  Program(host).Run();
}
