#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolkit/control.h"
#include "toolkit/timer_control.h"

/// An entry of a menu bar or of a menu: a command, a separator or, with children, a submenu.
struct MenuItem {
  std::string Name{};
  std::string Caption{};   // "&" stands before the access key; "-" is a separator
  std::string Shortcut{};  // "Ctrl+" and a capital letter; empty: none
  std::function<void()> Click{};
  std::vector<MenuItem> Items{};
};

/// One window as plain data. Once it has been shown, the form, its controls and its menu must keep
/// their addresses and their number, and only what a `Look` holds may change on the screen.
struct Form {
  std::string Name;
  std::string Caption;
  int Width = 0;   // client area, twips
  int Height = 0;  // client area, twips
  Color BackColor;
  bool HasFrame = true;  // with a title bar; no form can be resized
  const Picture* Icon = nullptr;

  std::vector<Control*> Controls;     // from front to back
  std::vector<TimerControl*> Timers;  // those enabled here start when the form is first shown
  std::vector<MenuItem> Menu;

  ControlEvents Events;                 // where no control lies; the index is 0
  std::function<void()> DragCancelled;  // a drag has ended without a drop
  std::function<void()> Load;           // before the form is first seen
  std::function<void()> Unload;         // the form is being closed

  /// The text of a control for assistive technology. Empty: the control never has a text. A text
  /// changes only when the `Look` of some control of the form does.
  std::function<std::string(const Control& control)> Describe;

  bool Visible = false;  // `Toolkit::Show` and `Toolkit::Unload` write it
};
