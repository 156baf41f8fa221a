#pragma once

#include "game/main_form.h"

/// The window of the first 2500 milliseconds. It ignores input. The toolkit and the main form must
/// outlive it.
struct frmSplash {
  frmSplash(Toolkit& programToolkit, frmVelmoran& mainForm)
      : toolkit(programToolkit), main(mainForm) {}
  frmSplash(const frmSplash&) = delete;
  frmSplash& operator=(const frmSplash&) = delete;

  Toolkit& toolkit;
  frmVelmoran& main;  // shown when the splash closes
  Form window;

  Control lblTitle;
  Control lblAuthors1;
  Control lblAuthors2;
  Control imgCheckerBoard1;
  Control imgCheckerBoard2;
  Control shpBorder;
  TimerControl tmrTimer;
};

/// Fills in the new form. Call it once, before the form is shown.
void BuildSplashWindow(frmSplash& form);

/// The load event of the splash.
void Form_Load(frmSplash& form);

/// The end of the splash: opens the main window and shows the help on the controls.
void tmrTimer_Timer(frmSplash& form);
