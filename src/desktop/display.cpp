#include "desktop/display.h"

#include <dlfcn.h>

#include <QString>
#include <QtGlobal>
#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void Leave(const char* line) {
  std::fputs(line, stderr);
  std::_Exit(1);
}

void TellMissing(QtMsgType type, const QMessageLogContext&, const QString&) {
  if (type == QtFatalMsg) Leave("velmoran: there is no display to open a window on\n");
}

[[noreturn]] void TellLost() { Leave("velmoran: the display is gone\n"); }

void TellOthers(QtMsgType, const QMessageLogContext&, const QString& message) {
  if (message.contains("connection broke")) TellLost();
  std::fprintf(stderr, "%s\n", qPrintable(message));
}

int HandleXlibError(void*) { TellLost(); }

}  // namespace

void ReportMissingDisplay() { qInstallMessageHandler(TellMissing); }

void ReportLostDisplay() {
  qInstallMessageHandler(TellOthers);
  // On X11 it may be Xlib that notices first. Qt's plugin has loaded it then, and only then.
  void* xlib = dlopen("libX11.so.6", RTLD_LAZY | RTLD_NOLOAD);
  if (!xlib) return;
  using Handler = int (*)(void* display);
  using Setter = Handler (*)(Handler);
  const auto setHandler = reinterpret_cast<Setter>(dlsym(xlib, "XSetIOErrorHandler"));
  if (setHandler) setHandler(HandleXlibError);
}
