#pragma once

#include <string>
#include <vector>

#include "toolkit/form.h"

/// A menu bar as HTML; empty where there is no menu. The access key of an entry is underlined, and
/// a command bears its place in `CommandsOf` as its value.
std::string MenuMarkup(const std::vector<MenuItem>& menu);

/// The commands of a menu in reading order.
std::vector<const MenuItem*> CommandsOf(const std::vector<MenuItem>& menu);
