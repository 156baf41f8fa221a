#pragma once

#include <QWidget>

#include "toolkit/host.h"

/// Shows a modal message over the window and returns when the user has closed it: by its button,
/// Enter, Escape or the box's own close.
void ShowModal(const MessageBox& box, QWidget* window);
