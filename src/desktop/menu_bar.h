#pragma once

#include <QMenuBar>
#include <functional>

#include "toolkit/form.h"

/// Fills a native menu bar. `choose` hears of each command that the user chooses, `open` of each
/// menu that is opened. The items must outlive the bar.
void FillMenuBar(QMenuBar& bar, const std::vector<MenuItem>& items,
                 const std::function<void(const MenuItem&)>& choose,
                 const std::function<void()>& open);
