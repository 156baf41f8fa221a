#pragma once

#include "game/main_form.h"

// The commands of the Help menu. Each shows one message and changes nothing.

void mnuControls_Click(frmVelmoran& form);
void mnuAbout_Click(frmVelmoran& form);
void mnuPart1_Click(frmVelmoran& form);
void mnuPart2_Click(frmVelmoran& form);
void mnuPart3_Click(frmVelmoran& form);
