#pragma once

#include <string>

#include "toolkit/form.h"

// Forms and controls as SVG, which a browser draws sharp at any scale. Coordinates are twips.

/// The look of a control: the content of its group. Empty if it is hidden or has nothing to draw.
std::string ControlMarkup(const Control& control);

/// The outline that follows the pointer during a drag: the content of its group.
std::string OutlineMarkup(const Rect& place);

/// The client area of a form, with an empty group for each control and one for the outline. The id
/// of a control's group is "control" and the control's index in the form's list; the outline has
/// the index after the last control.
std::string FormMarkup(const Form& form);
