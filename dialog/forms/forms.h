#pragma once

// The pages' form classes as the dialog names them. Each page has widgets "label", "groupBox" and
// so on of its own: reach a widget through its page's form, never by name through the dialog.
#include "ui_customized_tab1.h"
#include "ui_customized_tab2.h"
#include "ui_customized_tab3.h"
#include "ui_customized_tab4.h"
#include "ui_customized_tab5.h"

namespace IPCUSTOMIZED {

using customized_tab1 = Ui::customized_tab1;
using customized_tab2 = Ui::customized_tab2;
using customized_tab3 = Ui::customized_tab3;
using customized_tab4 = Ui::customized_tab4;
using customized_tab5 = Ui::customized_tab5;

} // namespace IPCUSTOMIZED
