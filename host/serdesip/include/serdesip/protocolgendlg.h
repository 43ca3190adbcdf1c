#pragma once

#include "serdesip/export.h"
#include "serdesip/types.h"

#include <dev/devicearg.h>
#include <utils/pinfigure.h>

#include <QDialog>
#include <QList>
#include <QStringList>

#include <memory>

namespace IPSERDESIP {

/// The frame of every protocol dialog: label, file and module name, synthesis tool, language, the
/// IP's tabs, the port figure, OK and Cancel. OK runs the virtual accept().
class HOST_SERDESIP_EXPORT protocolGenDlg : public QDialog {
    Q_OBJECT

public:
    explicit protocolGenDlg(QWidget* parent = nullptr);
    ~protocolGenDlg() override;

    /// For a new instance: takes the device, names file and module after the instance, and runs
    /// initForDevice().
    void setCreating(const QString& name, const DEV::DeviceArg& device);
    /// For a saved one: looks its "target_device" up, runs initForDevice(), restores file and
    /// module name, then asks loadConfig(). False: refused, the dialog is not to be shown.
    bool setOpening(const ConfigMap& config);
    /// Whether an existing instance is being edited.
    bool isOpening() const;

    const DEV::DeviceArg& device() const;
    QString fileName() const;
    QString moduleName() const;
    QString uiSynthesisTool() const;
    void uiSetSynthesisTool(const QString& tool);
    int uiLanguageIndex() const;
    void uiSetLanguageIndex(int index);
    /// The folder that the instance's output goes to: the transceiver working directory, "/", the
    /// file name. A file name that checkFileOptions() speaks against is reported to the user and
    /// left out; IPCore::makeDirs() and generator::generate() refuse what is then built on it.
    QString createPath() const;

    /// While true, the fields change for a trial that is put back: it is no doing of the user's.
    bool isRehearsing() const;

    /// The pins that the figure shows.
    QList<Utils::PinFigure> figurePins() const;

protected:
    /// Adapts the dialog to device(); called once.
    virtual void initForDevice();
    /// Restores the widgets; false refuses the configuration.
    virtual bool loadConfig(const ConfigMap& config);

    void uiSetLabelText(const QString& text);
    void uiSetDefaultFileName(const QString& name);
    void uiSetModuleName(const QString& name);
    /// Adds a page; the frame takes it over.
    void uiAddTab(QWidget* page, const QString& title);
    void uiSetFigurePins(const QList<Utils::PinFigure>& pins);
    /// Connects the frame's own file name and creation path fields.
    void fileNameConnectCreatIn();

    /// What is wrong with the file options, one sentence each; empty: nothing.
    QStringList checkFileOptions();
    void showErrorMsg(const QStringList& messages);
    /// False when another instance of the project writes to this file name; the user is told.
    bool checkFileExisting();
    /// False when the module name cannot be used; the user is told.
    bool checkModuleName();

    bool event(QEvent* event) override;
    /// Enter in a text field takes the text over; it does not press OK.
    void keyPressEvent(QKeyEvent* event) override;

    /// The IP's help document, a path below the IP's data folder.
    QString m_helpDocument;
    /// The lanes (captions) last handed to serdes::checkRoute().
    QStringList m_lanes;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace IPSERDESIP
