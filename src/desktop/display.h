#pragma once

// A display that cannot be reached or drawn on, or that is lost, ends the program with one line on
// standard error and exit code 1. Left alone, Qt, Xlib and libwayland tell it at length, and Qt
// aborts.

/// To be called before there is an application. The line gives the reasons that Qt gave.
void ReportMissingDisplay();

/// To be called once there is one: from here on other messages of Qt are told as they are.
void ReportLostDisplay();
