#pragma once

#include <serdesip/protocolgendlg.h>

#include <QStringList>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QSpinBox;

/// A protocol dialog with every kind of field, and with buttons that make trouble.
class TrialDialog : public IPSERDESIP::protocolGenDlg {
    Q_OBJECT

public:
    TrialDialog();
    void accept() override;
    void reject() override;

    /// What the fields hold.
    IPSERDESIP::ConfigMap config() const;
    /// What the rules were told, in order.
    QStringList heard;
    /// OK asks first, and only "Yes" lets it through.
    bool asksOnAccept = false;
    /// Cancel does nothing.
    bool staysOnCancel = false;

    QLineEdit* rate;
    QLineEdit* mask;
    QLineEdit* hex;
    QComboBox* mode;
    QCheckBox* lane;
    QSpinBox* level;

private:
    QPushButton* addButton(QWidget* page, const char* name);
    void askTwice();
    void openOtherDialogs();
};
