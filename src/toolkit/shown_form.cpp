#include "toolkit/shown_form.h"

#include <cassert>
#include <utility>

Look LookOf(const Control& control) {
  return {control.Visible, RectOf(control), control.Picture, control.BackColor, control.Caption};
}

std::optional<Rect> OutlineOf(const Form& form, const Drag& drag) {
  if (!drag.Source || drag.Window != &form) return std::nullopt;
  Rect place = RectOf(*drag.Source);
  place.Left += drag.Pointer.X - drag.Start.X;
  place.Top += drag.Pointer.Y - drag.Start.Y;
  return place;
}

ShownForm::Changes ShownForm::Update(const Drag& drag) {
  Changes changes;
  assert(looks.size() == form.Controls.size());
  for (std::size_t place = 0; place < looks.size(); ++place) {
    Look look = LookOf(*form.Controls[place]);
    if (look == looks[place]) continue;
    changes.Looks.push_back({place, std::exchange(looks[place], look), look});
  }
  // Texts change only with a look, so without a changed look there is none to compare.
  for (std::size_t place = 0; !changes.Looks.empty() && place < words.size(); ++place) {
    std::string now = form.Describe ? form.Describe(*form.Controls[place]) : "";
    if (now == words[place]) continue;
    changes.Words.push_back({place, std::exchange(words[place], now), now});
  }
  changes.OutlineBefore = std::exchange(outline, OutlineOf(form, drag));
  changes.HasOutlineChanged = changes.OutlineBefore != outline;
  return changes;
}
