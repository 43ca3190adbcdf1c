#include "ipgen/window/newprojectdialog.h"

#include "ipgen/window/named.h"
#include "ipgen/window/theme.h"

#include <core/idecore.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace Window {

QString deviceSummary(const QString& deviceId) {
    const DEV::DeviceDb& db = Core::IdeCore::deviceDataBase();
    const auto info = db.info(db.findDevice(deviceId));
    if (!info) {
        return {};
    }
    return NewProjectDialog::tr("class %1, quads: %2, lanes: %3, clock inputs: %4")
        .arg(info->className)
        .arg(info->quads)
        .arg(info->quads * info->lanesPerQuad)
        .arg(info->pins.size());
}

NewProjectDialog::NewProjectDialog(const QString& place, QWidget* parent)
    : QDialog(parent)
    , m_folder(new QLineEdit(this))
    , m_device(new QComboBox(this))
    , m_about(new QLabel(this))
    , m_problem(new QLabel(this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this)) {
    setWindowTitle(tr("New project"));
    setObjectName(QStringLiteral("newProject"));
    named(m_folder, "newProjectFolder", tr("Project folder"),
          tr("The folder is made when it is missing; the project file goes into it"));
    named(m_device, "newProjectDevice", tr("Device"), tr("The device that the project is for"));
    m_problem->setWordWrap(true);
    m_problem->setMinimumWidth(fontMetrics().averageCharWidth() * 60);
    QPalette red = m_problem->palette();
    red.setColor(QPalette::WindowText, badColor(palette()));
    m_problem->setPalette(red);

    QString proposal;
    for (int i = 1; proposal.isEmpty() || QFileInfo::exists(proposal); ++i) {
        proposal = place + tr("/project%1").arg(i);
    }
    m_folder->setText(QDir::toNativeSeparators(proposal));
    const QList<DEV::DeviceArg> devices = Core::IdeCore::deviceDataBase().devices();
    for (const DEV::DeviceArg& device : devices) {
        m_device->addItem(device.id(), device.id());
    }
    auto* choose = named(new QPushButton(tr("&Browse …"), this), "newProjectBrowse",
                         tr("Browse for the project folder"), tr("Choose the folder"));
    auto* row = new QHBoxLayout;
    row->addWidget(m_folder, 1);
    row->addWidget(choose);
    auto* form = new QFormLayout;
    auto* folderLabel = new QLabel(tr("&Folder"), this);
    folderLabel->setBuddy(m_folder);
    form->addRow(folderLabel, row);
    form->addRow(tr("&Device"), m_device);
    form->addRow(QString(), m_about);
    form->addRow(QString(), m_problem);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addStretch(1);
    layout->addWidget(m_buttons);
    named(m_buttons->button(QDialogButtonBox::Ok), "newProjectOk", tr("Make the project"));
    named(m_buttons->button(QDialogButtonBox::Cancel), "newProjectCancel", tr("Cancel"));

    connect(choose, &QPushButton::clicked, this, &NewProjectDialog::browse);
    connect(m_folder, &QLineEdit::textChanged, this, &NewProjectDialog::check);
    connect(m_device, &QComboBox::currentTextChanged, this, &NewProjectDialog::check);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    check();
    m_folder->setFocus();
}

QString NewProjectDialog::folder() const {
    return QDir::fromNativeSeparators(m_folder->text().trimmed());
}

QString NewProjectDialog::deviceId() const {
    return m_device->currentData().toString();
}

void NewProjectDialog::browse() {
    const QString chosen = QFileDialog::getExistingDirectory(this, tr("Project folder"), folder());
    if (!chosen.isEmpty()) {
        m_folder->setText(QDir::toNativeSeparators(chosen));
    }
}

void NewProjectDialog::check() {
    QString problem;
    if (folder().isEmpty()) {
        problem = tr("Give the project a folder.");
    } else if (QFileInfo::exists(folder() + QStringLiteral("/project.json"))) {
        problem = tr("There is a project in this folder already; open it instead.");
    } else if (QFileInfo(folder()).exists() && !QFileInfo(folder()).isDir()) {
        problem = tr("This is a file, not a folder.");
    } else if (m_device->count() == 0) {
        problem = tr("The device database is empty.");
    }
    m_problem->setText(problem);
    m_about->setText(deviceSummary(deviceId()));
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(problem.isEmpty());
}

} // namespace Window
