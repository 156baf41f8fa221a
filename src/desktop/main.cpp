#include <QApplication>

#include "desktop/desktop_host.h"
#include "desktop/display.h"
#include "ui/program.h"

int main(int, char** argv) {
  int argc = 1;  // the game takes no options, and Qt shall not take any either
  // The user's own message bus, or none. Otherwise the first window would have one started for this
  // game alone, and wait for that: for seconds, if the display is lost meanwhile.
  if (qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS"))
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:runtime=yes");
  ReportMissingDisplay();
  QApplication application(argc, argv);
  ReportLostDisplay();
  QApplication::setDesktopFileName("velmoran");
  // Set any earlier, the platform would set it back.
  QApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);

  DesktopHost host;
  Program(host).Run();
}
