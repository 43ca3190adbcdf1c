// Coding, word alignment, bonding and clock correction.

#include "dialog/customizeddlg.h"

#include "dialog/combobox.h"
#include "dialog/rules/datapath.h"
#include "model/config/values.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

namespace IPCUSTOMIZED {

namespace {

/// New items; a choice that is offered again stays, else the first item is taken.
void refillKeeping(QComboBox* combo, const QStringList& items) {
    const QString chosen = combo->currentText();
    combo->clear();
    combo->addItems(items);
    if (!chosen.isEmpty()) {
        selectItem(combo, chosen);
    }
}

void refillFresh(QComboBox* combo, const QStringList& items, bool open) {
    combo->clear();
    combo->setEnabled(open);
    if (open) {
        combo->addItems(items);
    }
}

/// Block codings run at one width and ratio only.
void lockForBlockCoding(bool block, QComboBox* width, QComboBox* ratio) {
    if (block) {
        selectItem(width, QStringLiteral("16"));
        selectItem(ratio, QStringLiteral("1:4"));
    }
    width->setEnabled(!block);
    ratio->setEnabled(!block);
}

void adapt8B10B(QCheckBox* box, int width) {
    if (width == 0) {
        return; // no width chosen: nothing to go by
    }
    const bool fits = rules::fits8B10B(width);
    if (!fits) {
        box->setChecked(false);
    }
    box->setEnabled(fits);
}

} // namespace

void customizeddlg::updateEnableDecoding() {
    const customized_tab2& page = m_forms->tab2;
    if (!isListed(m_class)) {
        adapt8B10B(page.checkBoxDecoding, page.comboBoxInternalDataWidth->currentText().toInt());
        return;
    }
    refillKeeping(page.comboBoxRxDecoding,
                  rules::codings(page.comboBoxRXInternalDataWidth->currentText().toInt(),
                                 page.comboBoxRXExternalDataRatio->currentText()));
    onRXDecodingModeChanged();
}

void customizeddlg::updateEnableEncoding() {
    const customized_tab2& page = m_forms->tab2;
    if (!isListed(m_class)) {
        adapt8B10B(page.checkBoxEncoding, page.comboBoxInternalDataWidth->currentText().toInt());
        return;
    }
    // The mode rule runs through the combo box's own signal.
    refillKeeping(page.comboBoxTxEncoding,
                  rules::codings(page.comboBoxTXInternalDataWidth->currentText().toInt(),
                                 page.comboBoxTXExternalDataRatio->currentText()));
}

void customizeddlg::onRXDecodingModeChanged() {
    const customized_tab2& page = m_forms->tab2;
    const QString coding = page.comboBoxRxDecoding->currentText();

    const bool metaFrame = coding == Value::Code64B67B;
    page.lineEditRxInterMetaFrameLength->setEnabled(metaFrame);
    page.lineEditRxInterMetaFrameLength->setText(metaFrame ? QStringLiteral("32") : QString());

    const bool subMode = coding == Value::Code64B66B;
    page.comboBox64B66BMode->setEnabled(subMode);
    page.comboBox64B66BMode->setCurrentIndex(subMode ? 0 : -1);

    lockForBlockCoding(rules::isBlockCoding(coding), page.comboBoxRXInternalDataWidth,
                       page.comboBoxRXExternalDataRatio);
}

void customizeddlg::onTXEncodingModeChanged() {
    const customized_tab2& page = m_forms->tab2;
    lockForBlockCoding(rules::isBlockCoding(page.comboBoxTxEncoding->currentText()),
                       page.comboBoxTXInternalDataWidth, page.comboBoxTXExternalDataRatio);
}

void customizeddlg::checkRXInterlakenMetaFrameLength() {
    QLineEdit* length = m_forms->tab2.lineEditRxInterMetaFrameLength;
    if (length->isEnabled()) {
        length->setText(rules::correctedMetaFrameLength(length->text()));
    }
}

void customizeddlg::onWordAlignmentUpdate() {
    const customized_tab2& page = m_forms->tab2;
    page.comboBoxPattern->setEnabled(page.WordAlignment->isChecked());
    page.lineEditMask->setEnabled(page.WordAlignment->isChecked());
}

void customizeddlg::onRXChannelBondingUpdate() {
    const customized_tab3& page = m_forms->tab3;
    const rules::BondingFields fields =
        rules::bondingFields(page.comboBoxRXChannelBoding->currentData().toInt());
    for (QWidget* widget : std::initializer_list<QWidget*>{
             page.lineEditPattern0, page.comboBoxPatternMaxSkew, page.comboBoxRXReadStartDepth}) {
        widget->setEnabled(fields.first);
    }
    for (QWidget* widget :
         std::initializer_list<QWidget*>{page.lineEditPattern1, page.checkBoxPattern1Character}) {
        widget->setEnabled(fields.second);
    }
    for (QWidget* widget : std::initializer_list<QWidget*>{
             page.lineEditPattern2, page.lineEditPattern3, page.checkBoxPattern2Character,
             page.checkBoxPattern3Character}) {
        widget->setEnabled(fields.rest);
    }
}

void customizeddlg::updateRXMasterChannelSelection() {
    const customized_tab3& page = m_forms->tab3;
    refillFresh(page.comboBoxRXMasterChannelSelection, usableLanes(),
                page.comboBoxRXChannelBoding->currentData().toInt() != 0);
}

void customizeddlg::updateTXMasterChannelSelection() {
    const customized_tab3& page = m_forms->tab3;
    refillFresh(page.comboBoxTXMasterChannelSelection, usableLanes(),
                page.checkBoxTXChannelBoding->isChecked());
}

void customizeddlg::updateCTCReadStartDepth() {
    const customized_tab4& page = m_forms->tab4;
    const rules::CorrectionFields fields =
        rules::correctionFields(page.comboBoxClockCorrection->currentData().toInt());
    page.comboBoxCTCReadStartDepth->setEnabled(fields.first);
    page.lineEditCTCPattern0->setEnabled(fields.first);
    page.lineEditCTCPattern1->setEnabled(fields.second);
    page.checkBoxCTCPattern1isK->setEnabled(fields.second);
}

void customizeddlg::updateClkSrc() {
    rebuildSelectedLanes();
    refillKeeping(m_forms->tab4.comboBoxClockSource,
                  rules::correctionClocks(m_selectedLanes.size()));
}

void customizeddlg::updatedMasterChannelSel() {
    const customized_tab4& page = m_forms->tab4;
    QComboBox* master = page.comboBoxMasterChannelSel;
    const bool corrects = page.comboBoxClockCorrection->currentText() != Value::None;
    master->setEnabled(corrects);
    rebuildSelectedLanes();
    refillKeeping(master, corrects ? m_selectedLanes : QStringList());
}

} // namespace IPCUSTOMIZED
