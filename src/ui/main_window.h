#pragma once

#include "game/main_form.h"

/// Fills in the new form: controls, pictures, timers and menu, each event with its procedure. Call
/// it once, before the form is shown.
void BuildMainWindow(frmVelmoran& form);
