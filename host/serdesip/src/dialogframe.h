#pragma once

#include <QtGlobal>

class QAction;
class QComboBox;
class QDialog;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPlainTextEdit;
class QPushButton;
class QTabBar;
class QTabWidget;
class QToolButton;

namespace IPSERDESIP {

class ElidedLabel;
class FigureView;

/// The widgets of a protocol dialog around the IP's pages. All belong to the dialog.
struct DialogFrame {
    QLabel* label = nullptr;
    QLabel* deviceName = nullptr;
    QAction* presets = nullptr;
    QToolButton* presetButton = nullptr;
    QMenu* presetMenu = nullptr;
    QAction* copyScript = nullptr;
    QToolButton* copyScriptButton = nullptr;
    QAction* undo = nullptr;
    QAction* redo = nullptr;
    QLineEdit* fileName = nullptr;
    QLineEdit* moduleName = nullptr;
    QComboBox* synthesisTool = nullptr;
    QComboBox* language = nullptr;
    QLineEdit* createIn = nullptr;
    QTabBar* tabBar = nullptr;
    QTabWidget* tabs = nullptr;
    QLabel* portCount = nullptr;
    FigureView* figure = nullptr;
    QPlainTextEdit* details = nullptr;
    ElidedLabel* strip = nullptr;
    QDialogButtonBox* buttons = nullptr;
    QPushButton* help = nullptr;

    /// Builds and lays out the frame in the dialog.
    void build(QDialog& dialog);
    /// Lets Tab lead from the bar through the pages, as one reads, and then to figure and buttons:
    /// the pages' fields are made after the frame.
    void orderFields() const;
};

} // namespace IPSERDESIP
