#pragma once

#include <string>
#include <string_view>

#include "toolkit/form.h"

// Forms, controls and pictures as SVG, which a browser draws sharp at any scale. The unit of a
// form's drawing is the twip: whole numbers are exact.

/// Text as the content of an element or of a quoted attribute.
std::string Escaped(std::string_view text);

/// What a control shows. Empty while it shows nothing.
std::string ControlMarkup(const Control& control);

/// The outline that follows the pointer in a drag: it shows on light and on dark.
std::string OutlineMarkup(const Rect& place);

/// A picture as a document of its own.
std::string IconMarkup(const Picture& picture);

/// A form: its menu bar, and its client area with an empty group for each control and one for the
/// outline. The group of a control has the id "control" and its place in the form's list.
std::string FormMarkup(const Form& form);
