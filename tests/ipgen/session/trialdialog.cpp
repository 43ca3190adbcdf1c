#include "trialdialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QEventLoop>
#include <QFileDialog>
#include <QGroupBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QRegExpValidator>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

/// Does not close when it is rejected.
class Stubborn : public QDialog {
public:
    void reject() override {}
    void done(int) override {}
};

template <typename Widget>
Widget* add(QWidget* page, const char* name) {
    auto* widget = new Widget;
    widget->setObjectName(QLatin1String(name));
    page->layout()->addWidget(widget);
    return widget;
}

QWidget* newPage() {
    auto* page = new QWidget;
    new QVBoxLayout(page);
    return page;
}

} // namespace

TrialDialog::TrialDialog() {
    QWidget* first = newPage();
    rate = add<QLineEdit>(first, "rate");
    rate->setValidator(
        new QRegExpValidator(QRegExp(QStringLiteral("^(\\d{0,2}(\\.\\d{1,8})?)$")), rate));
    rate->setText(QStringLiteral("1.25"));
    connect(rate, &QLineEdit::editingFinished, this, [this] {
        heard.append(QStringLiteral("rate ") + rate->text());
        if (rate->text() == QLatin1String("99")) {
            QMessageBox::warning(this, QStringLiteral("Warning"), QStringLiteral("too fast"));
            rate->setText(QStringLiteral("1.25"));
        }
    });
    mode = add<QComboBox>(first, "mode");
    mode->addItem(QStringLiteral("Auto"), 4);
    mode->addItem(QStringLiteral("Manual"));
    mode->addItem(QStringLiteral("manual"), QStringLiteral("low"));
    connect(mode, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this](int index) { heard.append(QStringLiteral("mode %1").arg(index)); });
    lane = add<QCheckBox>(first, "lane");
    lane->setText(QStringLiteral("Q0 Lane0"));
    connect(lane, &QCheckBox::toggled, this,
            [this](bool on) { heard.append(QStringLiteral("lane %1").arg(on)); });
    add<QLineEdit>(first, "locked")->setEnabled(false);
    add<QLineEdit>(first, "away")->hide();
    connect(addButton(first, "twice"), &QPushButton::clicked, this, &TrialDialog::askTwice);
    connect(addButton(first, "others"), &QPushButton::clicked, this,
            &TrialDialog::openOtherDialogs);
    connect(addButton(first, "forever"), &QPushButton::clicked, this, [] { QEventLoop().exec(); });
    uiAddTab(first, QStringLiteral("A,B"));

    QWidget* second = newPage();
    mask = add<QLineEdit>(second, "mask");
    mask->setInputMask(QStringLiteral("BBBB;0"));
    mask->setText(QStringLiteral("1111"));
    hex = add<QLineEdit>(second, "hex");
    hex->setInputMask(QStringLiteral(">HH;0"));
    hex->setText(QStringLiteral("7C"));
    level = add<QSpinBox>(second, "level");
    level->setRange(0, 19);
    level->setValue(7);
    add<QLabel>(second, "note")->setText(QStringLiteral("a note"));
    add<QGroupBox>(second, "group")->setTitle(QStringLiteral("a group"));
    add<QGroupBox>(second, "group")->hide();
    uiAddTab(second, QStringLiteral("C"));
    uiSetFigurePins({Utils::PinFigure(QStringLiteral("a_o"), 1, false, Qt::AlignRight),
                     Utils::PinFigure(QStringLiteral("b_i[3:0]"), 0, true, Qt::AlignLeft)});
}

QPushButton* TrialDialog::addButton(QWidget* page, const char* name) {
    auto* button = add<QPushButton>(page, name);
    button->setText(QLatin1String(name));
    return button;
}

/// One box inside the other's consequences, as rules ask.
void TrialDialog::askTwice() {
    const auto first = QMessageBox::question(this, QStringLiteral("One"), QStringLiteral("first?"),
                                             QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    if (first == QMessageBox::Yes) {
        QMessageBox::information(this, QStringLiteral("Note"), QStringLiteral("between"));
        const auto second =
            QMessageBox::question(this, QStringLiteral("Two"), QStringLiteral("second?"),
                                  QMessageBox::Yes | QMessageBox::Cancel, QMessageBox::Yes);
        heard.append(second == QMessageBox::Yes ? QStringLiteral("both")
                                                : QStringLiteral("first only"));
    } else {
        heard.append(QStringLiteral("none"));
    }
}

void TrialDialog::openOtherDialogs() {
    QFileDialog::getOpenFileName(this, QStringLiteral("Pick"));
    QInputDialog::getText(this, QStringLiteral("Ask"), QStringLiteral("a name"));
    QMenu menu;
    menu.addAction(QStringLiteral("entry"));
    menu.exec();
    Stubborn().exec();
    heard.append(QStringLiteral("others done"));
}

void TrialDialog::accept() {
    if (rate->text() == QLatin1String("13")) {
        QMessageBox::critical(this, QStringLiteral("Failure"), QStringLiteral("no 13"));
        return;
    }
    if (!asksOnAccept || QMessageBox::question(this, QStringLiteral("Sure"), QStringLiteral("?"),
                                               QMessageBox::Yes | QMessageBox::No,
                                               QMessageBox::No) == QMessageBox::Yes) {
        QDialog::accept();
    }
}

void TrialDialog::reject() {
    if (!staysOnCancel) {
        QDialog::reject();
    }
}

IPSERDESIP::ConfigMap TrialDialog::config() const {
    return {
        {QStringLiteral("rate"), rate->text()},      {QStringLiteral("mode"), mode->currentIndex()},
        {QStringLiteral("lane"), lane->isChecked()}, {QStringLiteral("mask"), mask->displayText()},
        {QStringLiteral("hex"), hex->displayText()}, {QStringLiteral("level"), level->value()},
        {QStringLiteral("file"), fileName()}};
}
