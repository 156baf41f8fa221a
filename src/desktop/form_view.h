#pragma once

#include <QWidget>
#include <vector>

#include "toolkit/host.h"

/// The client area of a form: one widget that paints all of its controls.
class FormView : public QWidget {
 public:
  explicit FormView(const Form& shownForm);

  /// Compares the controls and the drag with what was painted last, and repaints what differs.
  void Refresh(const Drag& drag);

  const Form& ShownForm() const { return form; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  /// What decides how a control looks.
  struct Look {
    bool Visible = false;
    Rect Place;
    const ::Picture* Picture = nullptr;
    std::optional<Color> BackColor;
    std::string Caption;

    bool operator==(const Look&) const = default;
  };

  static Look LookOf(const Control& control);
  void Repaint(const Rect& place);

  const Form& form;
  std::vector<Look> looks;      // of form.Controls, as painted last
  std::optional<Rect> outline;  // of the drag, as painted last
};
