#include "desktop/display.h"

#include <dlfcn.h>

#include <QGuiApplication>
#include <QScreen>
#include <QString>
#include <QtGlobal>
#include <cstdio>
#include <cstdlib>
#include <mutex>

namespace {

constexpr int LeastDepth = 15;  // bits a pixel; on less Qt draws nothing

/// Ends the program with one line, even if two threads come to know at once: on Wayland Qt reads
/// from the display in a thread of its own.
[[noreturn]] void Leave(const QString& reason) {
  static std::mutex onlyOne;
  onlyOne.lock();
  std::fprintf(stderr, "velmoran: %s\n", qPrintable(reason.simplified()));
  std::_Exit(1);
}

/// What Qt has said so far of why it cannot start. A second platform may still do.
QString& Reasons() {
  static QString reasons;
  return reasons;
}

void KeepReason(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type == QtFatalMsg) Leave("no window can be opened" + Reasons());
  Reasons() += (Reasons().isEmpty() ? ": " : "; ") + message.simplified();
}

[[noreturn]] void TellLost() { Leave("the display is gone"); }

void TellOthers(QtMsgType, const QMessageLogContext&, const QString& message) {
  if (message.contains("connection broke")) TellLost();
  // Qt 6.8 says so of its windows on Wayland at scales like 1.5, and has just set it straight.
  if (message.contains("device pixel ratio value was stale")) return;
  std::fprintf(stderr, "%s\n", qPrintable(message));
}

int HandleXlibError(void*) { TellLost(); }

}  // namespace

void ReportMissingDisplay() { qInstallMessageHandler(KeepReason); }

void ReportLostDisplay() {
  const int depth = QGuiApplication::primaryScreen()->depth();
  if (depth < LeastDepth) Leave(QString("a display of %1 bits has too few colours").arg(depth));
  qInstallMessageHandler(TellOthers);
  // On X11 it may be Xlib that notices first. Qt's plugin has loaded it then, and only then.
  void* xlib = dlopen("libX11.so.6", RTLD_LAZY | RTLD_NOLOAD);
  if (!xlib) return;
  using Handler = int (*)(void* display);
  using Setter = Handler (*)(Handler);
  const auto setHandler = reinterpret_cast<Setter>(dlsym(xlib, "XSetIOErrorHandler"));
  if (setHandler) setHandler(HandleXlibError);
}
