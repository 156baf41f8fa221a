#pragma once

#include "ui/program.h"

/// The only program of the page. It is made at the first call and never destroyed.
Program& TheProgram();
