#pragma once

#include "ui/program.h"

/// The one program of the page: it lives as long as the page does.
Program& TheProgram();
