#pragma once

#include <string>

#include "toolkit/form.h"

// Forms and controls as SVG, which a browser draws sharp at any scale. The unit of a
// form's drawing is the twip: whole numbers are exact.

/// What a control shows. Empty while it shows nothing.
std::string ControlMarkup(const Control& control);

/// The outline that follows the pointer in a drag.
std::string OutlineMarkup(const Rect& place);

/// The client area of a form, with an empty group for each control and one for the
/// outline. The group of a control has the id "control" and its place in the form's list.
std::string FormMarkup(const Form& form);
