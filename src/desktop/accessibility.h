#pragma once

#include "desktop/form_view.h"

/// Offers the controls that a form describes to assistive technology, as named children of its
/// view. Call it once, before any window is shown.
void InstallAccessibility();

/// Notifies assistive technology, if it is active, of the controls whose name has changed.
void AnnounceChanges(FormView& view, const std::vector<ShownForm::ChangedWords>& words);
