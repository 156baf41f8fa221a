#pragma once

class FormView;

/// Offers the controls that a form describes to assistive technology, as named children of its
/// view. To be called once, before any window is shown.
void InstallAccessibility();

/// Tells assistive technology, where there is any, that the names of the children may have changed.
void AnnounceChanges(FormView& view);
