#pragma once

#include <string>
#include <vector>

#include "toolkit/form.h"

/// A menu bar as HTML; empty where there is no menu. The access key of an entry is underlined, and
/// a command bears its place in `commands` as its value. Fills `commands` anew.
std::string MenuMarkup(const std::vector<MenuItem>& menu, std::vector<const MenuItem*>& commands);
