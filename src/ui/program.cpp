#include "ui/program.h"

#include "ui/main_window.h"

Program::Program(Host& host) : toolkit(host) {
  BuildMainWindow(mainForm);
  BuildSplashWindow(splash);
}

void Program::Run() {
  toolkit.Show(splash.window);
  toolkit.Run();
}
