#include "dialogframe.h"

#include "elidedlabel.h"
#include "figureview.h"

#include <serdesip/protocolgendlg.h>

#include <QAction>
#include <QBoxLayout>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

namespace IPSERDESIP {

namespace {

template <typename Widget>
Widget* named(Widget* widget, const char* name, const QString& accessibleName) {
    widget->setObjectName(QString::fromLatin1(name));
    widget->setAccessibleName(accessibleName);
    return widget;
}

void addField(QGridLayout* grid, int row, int column, const QString& caption, QWidget* field,
              int columnSpan = 1) {
    auto* label = new QLabel(caption);
    label->setBuddy(field);
    grid->addWidget(label, row, column);
    grid->addWidget(field, row, column + 1, 1, columnSpan);
}

/// A button for an action with a key. Its tooltip says what it does, and the key.
QToolButton* actionButton(QDialog& dialog, QAction*& action, const char* name, const QString& text,
                          const QString& what, const QKeySequence& keys) {
    action = new QAction(text, &dialog);
    action->setShortcut(keys);
    action->setToolTip(
        QStringLiteral("%1 (%2)").arg(what, keys.toString(QKeySequence::NativeText)));
    auto* button = named(new QToolButton, name, text);
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus); // the keys serve those who do not use the mouse
    return button;
}

QLayout* header(DialogFrame& frame, QDialog& dialog) {
    frame.label = new QLabel;
    QFont font = frame.label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.25);
    frame.label->setFont(font);
    frame.deviceName = new QLabel;
    frame.deviceName->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* row = new QHBoxLayout;
    row->addWidget(frame.label, 1);
    frame.presetButton =
        actionButton(dialog, frame.presets, "presets", protocolGenDlg::tr("Presets"),
                     protocolGenDlg::tr("Apply a preset, or keep the fields as one"),
                     QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_P));
    frame.presetMenu =
        named(new QMenu(frame.presetButton), "presetMenu", protocolGenDlg::tr("Presets"));
    frame.presetMenu->setToolTipsVisible(true);
    frame.presetButton->setMenu(frame.presetMenu);
    frame.presetButton->setPopupMode(QToolButton::InstantPopup);
    frame.copyScriptButton = actionButton(
        dialog, frame.copyScript, "copyScript", protocolGenDlg::tr("Copy as session script"),
        protocolGenDlg::tr(
            "Put a script on the clipboard that makes a new instance with these settings"),
        QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_C));
    for (QToolButton* lent : {frame.presetButton, frame.copyScriptButton}) {
        lent->hide(); // until the program lends what they need
        row->addWidget(lent);
    }
    row->addWidget(actionButton(dialog, frame.undo, "undo", protocolGenDlg::tr("Undo"),
                                protocolGenDlg::tr("Undo the last edit"),
                                QKeySequence(QKeySequence::Undo)));
    row->addWidget(actionButton(dialog, frame.redo, "redo", protocolGenDlg::tr("Redo"),
                                protocolGenDlg::tr("Do again what was undone"),
                                QKeySequence(QKeySequence::Redo)));
    for (QAction* action : {frame.presets, frame.copyScript, frame.undo, frame.redo}) {
        action->setEnabled(false);
    }
    row->addSpacing(12);
    row->addWidget(frame.deviceName);
    return row;
}

QLayout* options(DialogFrame& frame) {
    frame.fileName = named(new QLineEdit, "fileName", protocolGenDlg::tr("File Name"));
    frame.moduleName = named(new QLineEdit, "moduleName", protocolGenDlg::tr("Module Name"));
    frame.synthesisTool =
        named(new QComboBox, "synthesisTool", protocolGenDlg::tr("Synthesis Tool"));
    // What is chosen is saved: the same text in every language.
    frame.synthesisTool->addItems(
        {QStringLiteral("Yosys"), QStringLiteral("Other"), QStringLiteral("None")});
    frame.language = named(new QComboBox, "language", protocolGenDlg::tr("Language"));
    frame.language->addItems({QStringLiteral("Verilog"), QStringLiteral("VHDL")});
    frame.createIn = named(new QLineEdit, "createIn", protocolGenDlg::tr("Create In"));
    frame.createIn->setReadOnly(true);
    frame.createIn->setFocusPolicy(Qt::ClickFocus);
    frame.createIn->setFrame(false);
    QPalette flat = frame.createIn->palette();
    flat.setBrush(QPalette::Base, Qt::transparent);
    frame.createIn->setPalette(flat);

    auto* grid = new QGridLayout;
    addField(grid, 0, 0, protocolGenDlg::tr("File Name:"), frame.fileName);
    addField(grid, 0, 2, protocolGenDlg::tr("Module Name:"), frame.moduleName);
    addField(grid, 0, 4, protocolGenDlg::tr("Synthesis Tool:"), frame.synthesisTool);
    addField(grid, 0, 6, protocolGenDlg::tr("Language:"), frame.language);
    addField(grid, 1, 0, protocolGenDlg::tr("Create In:"), frame.createIn, 7);
    grid->setColumnStretch(1, 3);
    grid->setColumnStretch(3, 3);
    return grid;
}

/// The pages, and above them and the figure the bar that chooses one: the titles need the whole
/// width, so the tab widget's own bar stays hidden.
QTabBar* pages(DialogFrame& frame) {
    frame.tabs = named(new QTabWidget, "tabs", protocolGenDlg::tr("Options"));
    frame.tabs->setDocumentMode(true);
    frame.tabs->tabBar()->hide();
    // Given the keyboard, it would hand it to the hidden bar, and Tab would lead no further.
    frame.tabs->setFocusProxy(nullptr);
    frame.tabs->setFocusPolicy(Qt::NoFocus);
    frame.tabBar = named(new QTabBar, "tabBar", protocolGenDlg::tr("Pages"));
    frame.tabBar->setExpanding(false);
    QObject::connect(frame.tabBar, &QTabBar::currentChanged, frame.tabs,
                     &QTabWidget::setCurrentIndex);
    QObject::connect(frame.tabs, &QTabWidget::currentChanged, frame.tabBar,
                     &QTabBar::setCurrentIndex);
    return frame.tabBar;
}

QToolButton* zoomButton(const char* name, const QString& text, const QString& what) {
    auto* button = named(new QToolButton, name, what);
    button->setText(text);
    button->setToolTip(what);
    button->setAutoRaise(true);
    return button;
}

QWidget* symbol(DialogFrame& frame) {
    frame.portCount = new QLabel;
    frame.figure = new FigureView;
    frame.figure->setObjectName(QStringLiteral("figure"));
    QToolButton* smaller =
        zoomButton("zoomOut", QString(QChar(0x2212)), protocolGenDlg::tr("Zoom out"));
    QToolButton* fit = zoomButton("zoomFit", protocolGenDlg::tr("Fit"),
                                  protocolGenDlg::tr("Fit the figure to the pane"));
    QToolButton* larger = zoomButton("zoomIn", QStringLiteral("+"), protocolGenDlg::tr("Zoom in"));
    QObject::connect(smaller, &QToolButton::clicked, frame.figure, &FigureView::zoomOut);
    QObject::connect(fit, &QToolButton::clicked, frame.figure, &FigureView::fit);
    QObject::connect(larger, &QToolButton::clicked, frame.figure, &FigureView::zoomIn);

    auto* tools = new QHBoxLayout;
    tools->addWidget(frame.portCount, 1);
    for (QToolButton* button : {smaller, fit, larger}) {
        tools->addWidget(button);
    }
    auto* pane = new QWidget;
    auto* column = new QVBoxLayout(pane);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(tools);
    column->addWidget(frame.figure, 1);
    return pane;
}

QWidget* side(DialogFrame& frame) {
    frame.details =
        named(new QPlainTextEdit, "details", protocolGenDlg::tr("Details of the last failure"));
    frame.details->setReadOnly(true);
    frame.details->setTabChangesFocus(true);
    frame.details->setPlaceholderText(
        protocolGenDlg::tr("When a check fails, its reasons stand here."));
    frame.details->setMinimumHeight(56);

    auto* halves = new QSplitter(Qt::Vertical);
    halves->addWidget(symbol(frame));
    halves->addWidget(frame.details);
    halves->setChildrenCollapsible(false);
    halves->setStretchFactor(0, 1);
    halves->setStretchFactor(1, 0);
    halves->setSizes({400, 84});
    return halves;
}

/// Large enough for the pages beside the figure, and never larger than the screen.
void giveSize(QDialog& dialog) {
    QSize size(1120, 780);
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        const QSize decoration(16, 48);
        size = size.boundedTo(screen->availableSize() - decoration);
    }
    dialog.resize(size);
    dialog.setMinimumSize(QSize(720, 480).boundedTo(size));
    dialog.setSizeGripEnabled(true);
}

} // namespace

void DialogFrame::orderFields() const {
    QList<QWidget*> fields;
    for (QWidget* at = tabBar->nextInFocusChain(); at != tabBar; at = at->nextInFocusChain()) {
        if (at != tabs && tabs->isAncestorOf(at) && at->focusPolicy() != Qt::NoFocus &&
            at->focusProxy() == nullptr) {
            fields.append(at);
        }
    }
    QWidget* last = tabBar;
    for (QWidget* field : qAsConst(fields)) {
        QWidget::setTabOrder(last, field);
        last = field;
    }
}

void DialogFrame::build(QDialog& dialog) {
    auto* column = new QVBoxLayout(&dialog);
    column->addLayout(header(*this, dialog));
    column->addLayout(options(*this));
    column->addWidget(pages(*this));

    auto* split = new QSplitter(Qt::Horizontal);
    split->setObjectName(QStringLiteral("sides"));
    split->addWidget(tabs);
    split->addWidget(side(*this));
    split->setChildrenCollapsible(false);
    split->setStretchFactor(0, 0);
    split->setStretchFactor(1, 1);
    split->setSizes({650, 430});
    column->addWidget(split, 1);

    // Beside the buttons, where a message moves nothing.
    strip = named(new ElidedLabel, "messageStrip", protocolGenDlg::tr("Last message"));
    auto* last = new QHBoxLayout;
    last->addWidget(strip, 1);

    buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                   QDialogButtonBox::Help);
    buttons->setObjectName(QStringLiteral("buttons"));
    help = buttons->button(QDialogButtonBox::Help);
    last->addWidget(buttons);
    column->addLayout(last);
    // Of the dialog, which has it from here on: else a button of a page would be.
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    giveSize(dialog);
}

} // namespace IPSERDESIP
