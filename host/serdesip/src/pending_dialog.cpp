// Stand-in until the frame exists: delete this file with its implementation.
#include "serdesip/protocolgendlg.h"

namespace IPSERDESIP {

struct protocolGenDlg::Private {
    DEV::DeviceArg device;
};

protocolGenDlg::protocolGenDlg(QWidget* parent)
    : QDialog(parent)
    , d(std::make_unique<Private>())
{
}
protocolGenDlg::~protocolGenDlg() = default;
void protocolGenDlg::setCreating(const QString&, const DEV::DeviceArg& device)
{
    d->device = device;
    initForDevice();
}
bool protocolGenDlg::setOpening(const ConfigMap& config) { return loadConfig(config); }
bool protocolGenDlg::isOpening() const { return false; }
const DEV::DeviceArg& protocolGenDlg::device() const { return d->device; }
QString protocolGenDlg::fileName() const { return {}; }
QString protocolGenDlg::moduleName() const { return {}; }
QString protocolGenDlg::uiSynthesisTool() const { return {}; }
void protocolGenDlg::uiSetSynthesisTool(const QString&) {}
int protocolGenDlg::uiLanguageIndex() const { return 0; }
void protocolGenDlg::uiSetLanguageIndex(int) {}
QString protocolGenDlg::createPath() const { return {}; }
QList<Utils::PinFigure> protocolGenDlg::figurePins() const { return {}; }
void protocolGenDlg::initForDevice() {}
bool protocolGenDlg::loadConfig(const ConfigMap&) { return false; }
void protocolGenDlg::uiSetLabelText(const QString&) {}
void protocolGenDlg::uiSetDefaultFileName(const QString&) {}
void protocolGenDlg::uiSetModuleName(const QString&) {}
void protocolGenDlg::uiAddTab(QWidget*, const QString&) {}
void protocolGenDlg::uiSetFigurePins(const QList<Utils::PinFigure>&) {}
void protocolGenDlg::fileNameConnectCreatIn() {}
QStringList protocolGenDlg::checkFileOptions() { return {}; }
void protocolGenDlg::showErrorMsg(const QStringList&) {}
bool protocolGenDlg::checkFileExisting() { return false; }
bool protocolGenDlg::checkModuleName() { return false; }

} // namespace IPSERDESIP
