#include <QObject>

/// Well-formed, loadable, and nothing that an IP catalogue can use.
class ForeignPlugin : public QObject {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.example.Foreign/1.0")
};

#include "foreign.moc"
