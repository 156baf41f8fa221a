#pragma once

#include <QWidget>

#include "toolkit/host.h"

/// Shows a modal message over `window`, or by itself if that is null. Returns when the user has
/// closed it with OK, Enter, Escape or the close button of its frame.
void ShowModal(const MessageBox& box, QWidget* window);
