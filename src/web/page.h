#pragma once

#include <cstddef>

// What the page and the game say to each other. `page.js` has each function under its name here,
// without the "Page". Text is UTF-8 and ends with a zero.

#ifdef __wasm__
#define FROM_PAGE(name) __attribute__((import_module("page"), import_name(#name)))
#define TO_PAGE(name) __attribute__((export_name(#name)))
#else  // compiled to be checked only
#define FROM_PAGE(name)
#define TO_PAGE(name)
#endif

extern "C" {

/// Milliseconds that never run backwards.
FROM_PAGE(now) double PageNow();

/// The local time of day.
FROM_PAGE(secondsSinceMidnight) double PageSecondsSinceMidnight();

/// Returns once there is input or so many milliseconds have passed; less than 0: input alone.
FROM_PAGE(wait) void PageWait(double milliseconds);

/// Shows a message box, and returns when the user has closed it. The text's lines end with CR LF.
FROM_PAGE(showBox) void PageShowBox(const char* text, const char* title, int icon);

/// Shows a form instead of the one before. Input is for this one from now on.
FROM_PAGE(open) void PageOpen(const char* markup, const char* title, const char* icon);

/// Draws a control anew, by its place in the form's list. Behind the last one stands the outline.
FROM_PAGE(paint) void PagePaint(std::size_t place, const char* markup);

/// Names a control for assistive technology.
FROM_PAGE(describe) void PageDescribe(std::size_t place, const char* words);

/// Tells assistive technology what has changed.
FROM_PAGE(announce) void PageAnnounce(const char* words);

/// The game has ended as the user wished.
[[noreturn]] FROM_PAGE(end) void PageEnd();

/// The game has broken one of its own promises, and must not go on.
[[noreturn]] FROM_PAGE(fail) void PageFail(const char* text);
}
