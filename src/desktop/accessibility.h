#pragma once

#include "desktop/form_view.h"

/// Offers the controls that a form describes to assistive technology, as named children of its
/// view. To be called once, before any window is shown.
void InstallAccessibility();

/// Tells assistive technology, where there is any, which controls have another name now.
void AnnounceChanges(FormView& view, const std::vector<ShownForm::ChangedWords>& words);
