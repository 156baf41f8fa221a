#pragma once

#include "game/main_form.h"

/// The tick of the pause after the human's move: the whole of the computer's turn runs inside it.
void tmrPause_Timer(frmVelmoran& form);

/// Green's turn: chooses a move, shows each stage with a blink, jumps on for as long as the piece
/// can, and gives the move back. It pumps events while a blink runs, and returns without touching
/// the board if a new game has come in meanwhile. Announces the end if green cannot move.
void ComputerTurn(frmVelmoran& form);
