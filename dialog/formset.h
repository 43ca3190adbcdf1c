#pragma once

#include "dialog/forms/forms.h"
#include "model/config/lanes.h"

#include <QWidget>

#include <array>

namespace IPCUSTOMIZED {

/// The five pages and, by place, the widgets that rules visit as a row.
struct FormSet {
    /// Builds the pages below the parent.
    explicit FormSet(QWidget* parent);

    std::array<QWidget*, 5> pages;
    customized_tab1 tab1;
    customized_tab2 tab2;
    customized_tab3 tab3;
    customized_tab4 tab4;
    customized_tab5 tab5;

    std::array<QCheckBox*, lanes.size()> laneBoxes; ///< in lane order
    std::array<QComboBox*, 4> muxSource;
    std::array<QLineEdit*, 4> muxFrequency;
};

} // namespace IPCUSTOMIZED
