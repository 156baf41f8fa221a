#include "desktop/display.h"

#include <dlfcn.h>

#include <QGuiApplication>
#include <QScreen>
#include <QString>
#include <QtGlobal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <mutex>

namespace {

constexpr int LeastDepth = 15;  // bits per pixel; Qt draws nothing on less

/// Ends the program with one line. Two threads may get here at once, because on Wayland Qt reads
/// from the display in a thread of its own. The second one waits for the end.
[[noreturn]] void ExitWith(const QString& reason) {
  static std::mutex onlyOne;
  onlyOne.lock();
  std::fprintf(stderr, "velmoran: %s\n", qPrintable(reason.simplified()));
  std::_Exit(1);
}

/// Why no window can be opened, as far as Qt has said. A second platform plugin may still work.
QString& Reasons() {
  static QString reasons;
  return reasons;
}

[[noreturn]] void ExitWithReasons() { ExitWith("no window can be opened" + Reasons()); }

[[noreturn]] void ExitDisplayLost() { ExitWith("the display is gone"); }

void HandleQtMessage(QtMsgType, const QMessageLogContext&, const QString& message) {
  if (message.contains("connection broke")) ExitDisplayLost();
  // Qt 6.8 prints this on Wayland at scales like 1.5, after it has corrected the value itself.
  if (message.contains("device pixel ratio value was stale")) return;
  std::fprintf(stderr, "%s\n", qPrintable(message));
}

void HandleQtMessageAtStart(QtMsgType type, const QMessageLogContext& context,
                            const QString& message) {
  if (type == QtDebugMsg || message.contains("connection broke"))
    return HandleQtMessage(type, context, message);
  // The last message only lists the plugins. It is no reason.
  if (!message.contains("no Qt platform plugin could be initialized"))
    Reasons() += (Reasons().isEmpty() ? ": " : "; ") + message.simplified();
  if (type == QtFatalMsg) ExitWithReasons();
}

/// The Wayland library would print this itself, without Qt.
void HandleWaylandMessage(const char* format, std::va_list values) {
  qWarning("%s", qPrintable(QString::vasprintf(format, values).trimmed()));
}

int HandleXlibError(void*) { ExitDisplayLost(); }

/// A function of a library that Qt may have loaded. Null if there is none.
template <typename Function>
Function* Find(const char* library, int mode, const char* name) {
  void* loaded = dlopen(library, RTLD_LAZY | mode);
  return loaded ? reinterpret_cast<Function*>(dlsym(loaded, name)) : nullptr;
}

}  // namespace

void ReportMissingDisplay() {
  qInstallMessageHandler(HandleQtMessageAtStart);
  using Handler = void (*)(const char* format, std::va_list values);
  const char* setter = "wl_log_set_handler_client";
  if (auto* set = Find<void(Handler)>("libwayland-client.so.0", 0, setter))
    set(HandleWaylandMessage);
}

void ReportLostDisplay() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (!screen) ExitWithReasons();
  if (screen->depth() < LeastDepth)
    ExitWith(QString("a display of %1 bits has too few colours").arg(screen->depth()));
  qInstallMessageHandler(HandleQtMessage);
  // On X11 Xlib may notice first. Qt's plugin has loaded it if it is needed.
  using Handler = int (*)(void* display);
  const char* setter = "XSetIOErrorHandler";
  if (auto* set = Find<Handler(Handler)>("libX11.so.6", RTLD_NOLOAD, setter)) set(HandleXlibError);
}
