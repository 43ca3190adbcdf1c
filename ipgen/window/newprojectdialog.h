#pragma once

#include <QDialog>

class QComboBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;

namespace Window {

/// Asks for the folder and the device of a new project, and says at once what is wrong with them.
class NewProjectDialog : public QDialog {
    Q_OBJECT

public:
    NewProjectDialog(const QString& place, QWidget* parent = nullptr);
    QString folder() const;
    QString deviceId() const;

private:
    void browse();
    void check();

    QLineEdit* m_folder;
    QComboBox* m_device;
    QLabel* m_about;
    QLabel* m_problem;
    QDialogButtonBox* m_buttons;
};

/// "class 60k, quads: 1, lanes: 4, clock inputs: 6" of a device; empty when nothing is known of it.
QString deviceSummary(const QString& deviceId);

} // namespace Window
