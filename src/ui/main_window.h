#pragma once

#include "game/main_form.h"

/// Fills in the form as it stands before any of its code has run: controls, pictures, timers and
/// menu, with every event wired to its procedure.
void BuildMainWindow(frmVelmoran& form);
