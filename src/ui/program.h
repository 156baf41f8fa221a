#pragma once

#include "game/main_form.h"
#include "ui/splash_window.h"

/// The whole game on a host: the toolkit and both windows, built but not shown.
struct Program {
  /// The host must outlive the program.
  explicit Program(Host& host);

  /// Shows the splash and plays until the user ends the game.
  [[noreturn]] void Run();

  Toolkit toolkit;
  frmVelmoran mainForm{toolkit};
  frmSplash splash{toolkit, mainForm};
};
