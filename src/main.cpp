#include <QApplication>
#include <cstdio>
#include <cstdlib>

#include "desktop/accessibility.h"
#include "desktop/desktop_host.h"
#include "ui/main_window.h"
#include "ui/splash_window.h"

namespace {

/// Where there is no display, Qt tells so at length and aborts. One line and an exit code will do.
void ReportNoDisplay(QtMsgType type, const QMessageLogContext&, const QString&) {
  if (type != QtFatalMsg) return;
  std::fputs("velmoran: there is no display to open a window on\n", stderr);
  std::_Exit(1);
}

}  // namespace

int main(int, char** argv) {
  int argc = 1;  // the game takes no options, and Qt shall not take any either
  qInstallMessageHandler(ReportNoDisplay);
  QApplication application(argc, argv);
  qInstallMessageHandler(nullptr);
  QApplication::setDesktopFileName("velmoran");
  // Set any earlier, the platform would set it back.
  QApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);

  InstallAccessibility();

  DesktopHost host;
  Toolkit toolkit(host);
  frmVelmoran mainForm(toolkit);
  frmSplash splash(toolkit, mainForm);
  BuildMainWindow(mainForm);
  BuildSplashWindow(splash);
  toolkit.Show(splash.window);
  toolkit.Run();
}
