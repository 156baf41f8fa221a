#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/host.h"

/// What decides how a control looks, apart from what never changes: its kind, its caption's font,
/// room and colour, and its line.
struct Look {
  bool Visible = false;
  Rect Place;
  const ::Picture* Picture = nullptr;
  std::optional<Color> BackColor;
  std::string Caption;

  bool operator==(const Look&) const = default;
};

Look LookOf(const Control& control);

/// Where the outline of the dragged image stands on the form: it keeps its distance from the
/// pointer. Empty while the form has no drag.
std::optional<Rect> OutlineOf(const Form& form, const Drag& drag);

/// The outline's lines, each a pixel wide, the outermost first. They lie within its place. One is
/// light and one dark, so that it shows on any ground.
inline constexpr std::array OutlineColors{White, Black};

/// What a host has shown of a form last, so that it shows anew only what has changed.
class ShownForm {
 public:
  /// A control that looks otherwise than before. One never shown before was hidden.
  struct ChangedLook {
    std::size_t Place = 0;  // of the control in the form's list
    Look Before;
    Look Now;
  };

  /// A control that is described otherwise than before. `Before` is empty the first time.
  struct ChangedWords {
    std::size_t Place = 0;  // of the control in the form's list
    std::string Before;
    std::string Now;
  };

  struct Changes {
    std::vector<ChangedLook> Looks;
    std::vector<ChangedWords> Words;
    bool HasOutlineChanged = false;
    std::optional<Rect> OutlineBefore;
  };

  /// The form must outlive this, and has all of its controls already.
  explicit ShownForm(const Form& shownForm)
      : form(shownForm), looks(form.Controls.size()), words(form.Controls.size()) {}

  /// What has changed since the last call; from here on that counts as shown.
  Changes Update(const Drag& drag);

  /// The outline of the drag as it is shown now.
  const std::optional<Rect>& Outline() const { return outline; }

 private:
  const Form& form;
  std::vector<Look> looks;         // of form.Controls
  std::vector<std::string> words;  // of form.Controls
  std::optional<Rect> outline;
};
