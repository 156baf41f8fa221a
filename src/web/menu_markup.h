#pragma once

#include <string>
#include <vector>

#include "toolkit/form.h"

/// A menu bar as HTML; empty if `menu` is empty. The access key of an entry is underlined. Replaces
/// `commands` with the entries that are commands; the value of such an entry is its index there.
/// The pointers lead into `menu`.
std::string MenuMarkup(const std::vector<MenuItem>& menu, std::vector<const MenuItem*>& commands);
