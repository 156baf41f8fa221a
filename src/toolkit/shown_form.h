#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/host.h"

/// What can change in how a control looks. Its kind, the font, width and colour of its caption,
/// and its line never change.
struct Look {
  bool Visible = false;
  Rect Place;
  const ::Picture* Picture = nullptr;
  std::optional<Color> BackColor;
  std::string Caption;

  bool operator==(const Look&) const = default;
};

/// The present look of a control.
Look LookOf(const Control& control);

/// The place of the outline of the dragged image on the form. It keeps its distance from the
/// pointer. Empty while the form has no drag.
std::optional<Rect> OutlineOf(const Form& form, const Drag& drag);

/// The outline's lines, each a pixel wide, the outermost first. They lie within its place. One is
/// light and one dark, so that the outline is visible on any background.
inline constexpr std::array OutlineColors{White, Black};

/// What a host showed of a form last, so that it repaints only what has changed.
class ShownForm {
 public:
  /// A control whose look has changed. Before the first `Update` all count as hidden.
  struct ChangedLook {
    std::size_t Place = 0;  // index of the control in `Form::Controls`
    Look Before;
    Look Now;
  };

  /// A control whose text has changed. `Before` is empty the first time.
  struct ChangedWords {
    std::size_t Place = 0;  // index of the control in `Form::Controls`
    std::string Before;
    std::string Now;
  };

  struct Changes {
    std::vector<ChangedLook> Looks;
    std::vector<ChangedWords> Words;
    bool HasOutlineChanged = false;
    std::optional<Rect> OutlineBefore;
  };

  /// The form must outlive this object and must have all of its controls already.
  explicit ShownForm(const Form& shownForm)
      : form(shownForm), looks(form.Controls.size()), words(form.Controls.size()) {}

  /// What has changed since the last call. The changes count as shown from now on.
  Changes Update(const Drag& drag);

  /// The outline of the drag as it is shown now.
  const std::optional<Rect>& Outline() const { return outline; }

 private:
  const Form& form;
  std::vector<Look> looks;         // of form.Controls
  std::vector<std::string> words;  // of form.Controls
  std::optional<Rect> outline;
};
