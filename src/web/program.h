#pragma once

#include "ui/main_window.h"
#include "ui/splash_window.h"
#include "web/web_host.h"

/// All of the running game.
struct Program {
  WebHost host;
  Toolkit toolkit{host};
  frmVelmoran mainForm{toolkit};
  frmSplash splash{toolkit, mainForm};
};

/// The one program of the page: it lives as long as the page does.
Program& TheProgram();
