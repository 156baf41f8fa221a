#pragma once

// If the display cannot be opened or drawn on, or if it is lost, the program ends with one line on
// standard error and exit code 1. By default Qt, Xlib and libwayland print more, and Qt aborts.

/// Call it before the application is created. The line gives the reasons that Qt gave.
void ReportMissingDisplay();

/// Call it once the application exists. From then on other messages of Qt are printed unchanged.
void ReportLostDisplay();
