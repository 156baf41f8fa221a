#pragma once

#include <cstddef>

// The functions of the page that the program calls. `page.js` implements each under its name here,
// without the "Page". Texts are UTF-8, end with a zero, and are read before the call returns.

#ifdef __wasm__
#define FROM_PAGE(name) __attribute__((import_module("page"), import_name(#name)))
#define TO_PAGE(name) __attribute__((export_name(#name)))
#else  // a native build, which only compiles and lints these files
#define FROM_PAGE(name)
#define TO_PAGE(name)
#endif

extern "C" {

/// Milliseconds since the page was loaded, with a fraction. They never run backwards.
FROM_PAGE(now) double PageNow();

/// The local time of day in seconds, with a fraction: at least 0, below 86,400.
FROM_PAGE(secondsSinceMidnight) double PageSecondsSinceMidnight();

/// Returns when input has been queued or this many milliseconds have passed. A negative number:
/// only when input has been queued.
FROM_PAGE(wait) void PageWait(double milliseconds);

/// Shows a message box, and returns when the user has closed it. CR LF breaks a line of the text,
/// an empty line separates paragraphs. `icon` is the number of a `MessageIcon`. Other input is
/// dropped meanwhile.
FROM_PAGE(showBox) void PageShowBox(const char* text, const char* title, int icon);

/// Shows a form and its menu in place of the previous ones. `icon` is SVG, empty for none; `title`
/// becomes the title of the page. Input now goes to this form.
FROM_PAGE(open) void PageOpen(const char* markup, const char* title, const char* icon);

/// Replaces the drawing of a control; empty markup clears it. `place` is the index of the control
/// in the form's list; the index after the last control is the outline.
FROM_PAGE(paint) void PagePaint(std::size_t place, const char* markup);

/// Sets the description of a control, by the same index, for assistive technology.
FROM_PAGE(describe) void PageDescribe(std::size_t place, const char* words);

/// Has screen readers read out what has changed on the form.
FROM_PAGE(announce) void PageAnnounce(const char* words);

/// Ends the game because the user wished it. The page stays and offers to start again.
[[noreturn]] FROM_PAGE(end) void PageEnd();

/// Ends the game because of a failed assert, which `text` names for the console of the browser.
[[noreturn]] FROM_PAGE(fail) void PageFail(const char* text);
}
