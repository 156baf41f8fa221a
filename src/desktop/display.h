#pragma once

// A display that cannot be reached or drawn on, or that is lost, ends the program with one line on
// standard error and exit code 1. Left alone, Qt, Xlib and libwayland tell it at length, and Qt
// aborts.

/// Call it before the application is created. The line gives the reasons that Qt gave.
void ReportMissingDisplay();

/// Call it once the application exists. From then on other messages of Qt are printed unchanged.
void ReportLostDisplay();
