#include "desktop/accessibility.h"

#include <QAccessibleWidget>
#include <algorithm>
#include <vector>

namespace {

/// One described control. Its name is computed at each request, so it is never out of date.
class ControlAccessible : public QAccessibleInterface {
 public:
  ControlAccessible(FormView& formView, const Control& describedControl)
      : view(formView), control(describedControl) {}

  bool isValid() const override { return true; }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&view);
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Name) return {};
    return QString::fromStdString(view.ViewedForm().Describe(control));
  }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override {
    const QRect place = view.PixelsOf(RectOf(control)).toAlignedRect();
    return {view.mapToGlobal(place.topLeft()), place.size()};
  }
  QAccessible::Role role() const override { return QAccessible::Graphic; }
  QAccessible::State state() const override { return {}; }

 private:
  FormView& view;
  const Control& control;
};

/// The view with its described controls, in their order on the form.
class FormAccessible : public QAccessibleWidget {
 public:
  explicit FormAccessible(FormView& formView)
      : QAccessibleWidget(&formView, QAccessible::Grouping,
                          QString::fromStdString(formView.ViewedForm().Caption).trimmed()) {
    if (!formView.ViewedForm().Describe) return;
    for (const Control* control : formView.ViewedForm().Controls) {
      if (formView.ViewedForm().Describe(*control).empty()) continue;
      // The registry owns it from here on.
      auto* child = new ControlAccessible(formView, *control);
      children.push_back(QAccessible::registerAccessibleInterface(child));  // NOLINT: no leak
      described.push_back(control);
    }
  }
  ~FormAccessible() override {
    for (const QAccessible::Id id : children) QAccessible::deleteAccessibleInterface(id);
  }

  int childCount() const override { return static_cast<int>(children.size()); }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    return QAccessible::accessibleInterface(children[static_cast<std::size_t>(index)]);
  }
  int indexOfChild(const QAccessibleInterface* wanted) const override {
    for (int index = 0; index < childCount(); ++index) {
      if (child(index) == wanted) return index;
    }
    return -1;
  }
  /// The child of a control; null if it has none.
  QAccessibleInterface* childOf(const Control& control) const {
    const auto place = std::ranges::find(described, &control);
    return child(static_cast<int>(place - described.begin()));
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    for (int index = 0; index < childCount(); ++index) {
      if (child(index)->rect().contains(x, y)) return child(index);
    }
    return nullptr;
  }

 private:
  std::vector<QAccessible::Id> children;
  std::vector<const Control*> described;  // in the order of `children`
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
  auto* view = dynamic_cast<FormView*>(object);
  return view ? new FormAccessible(*view) : nullptr;
}

}  // namespace

void InstallAccessibility() { QAccessible::installFactory(MakeAccessible); }

void AnnounceChanges(FormView& view, const std::vector<ShownForm::ChangedWords>& words) {
  if (words.empty() || !QAccessible::isActive()) return;
  const auto* board = dynamic_cast<FormAccessible*>(QAccessible::queryAccessibleInterface(&view));
  if (!board) return;
  for (const ShownForm::ChangedWords& changed : words) {
    // A control without a former name is new, and assistive technology reads its name anyway.
    if (changed.Before.empty()) continue;
    QAccessibleEvent event(board->childOf(*view.ViewedForm().Controls[changed.Place]),
                           QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
  }
}
