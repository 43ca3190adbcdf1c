#include "dialog/formset.h"

namespace IPCUSTOMIZED {

FormSet::FormSet(QWidget* parent) {
    for (QWidget*& page : pages) {
        page = new QWidget(parent);
    }
    tab1.setupUi(pages[0]);
    tab2.setupUi(pages[1]);
    tab3.setupUi(pages[2]);
    tab4.setupUi(pages[3]);
    tab5.setupUi(pages[4]);
    laneBoxes = {tab1.q0_l0, tab1.q0_l1, tab1.q0_l2, tab1.q0_l3,
                 tab1.q1_l0, tab1.q1_l1, tab1.q1_l2, tab1.q1_l3};
    muxSource = {tab1.comboBoxRefMux0Source, tab1.comboBoxRefMux1Source, tab1.comboBoxRefMux2Source,
                 tab1.comboBoxRefMux3Source};
    muxFrequency = {tab1.ReferenceMux0Freq, tab1.ReferenceMux1Freq, tab1.ReferenceMux2Freq,
                    tab1.ReferenceMux3Freq};
}

} // namespace IPCUSTOMIZED
