#pragma once

#include <QMenuBar>
#include <functional>

#include "toolkit/form.h"

/// Fills a native menu bar. `choose` is called with each command that the user chooses, `open` for
/// each menu that opens. The items must outlive the bar.
void FillMenuBar(QMenuBar& bar, const std::vector<MenuItem>& items,
                 const std::function<void(const MenuItem&)>& choose,
                 const std::function<void()>& open);
