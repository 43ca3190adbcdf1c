#include "slotspy.h"

#include <QMetaMethod>

// Qt tells tools of every slot that a signal runs; the hook is exported but not documented.
struct QSignalSpyCallbackSet {
    using BeginCallback = void (*)(QObject* caller, int index, void** arguments);
    using EndCallback = void (*)(QObject* caller, int index);
    BeginCallback signalBegin;
    BeginCallback slotBegin;
    EndCallback signalEnd;
    EndCallback slotEnd;
};
Q_CORE_EXPORT void qt_register_signal_spy_callbacks(QSignalSpyCallbackSet* callbacks);

namespace DialogTest {

namespace {

struct Record {
    const QObject* dialog = nullptr;
    int depth = 0;
    QStringList outermost;
    QStringList all;
} record;

bool isOurs(const QObject* receiver) {
    for (const QObject* object = receiver; object != nullptr; object = object->parent()) {
        if (object == record.dialog) {
            return !object->objectName().startsWith(QLatin1String("qt_")) &&
                   !receiver->inherits("QLayout");
        }
    }
    return false;
}

void slotBegins(QObject* receiver, int index, void**) {
    const QMetaMethod method = receiver->metaObject()->method(index);
    if (!isOurs(receiver)) {
        return;
    }
    QString name = QString::fromLatin1(method.name());
    if (receiver != record.dialog) {
        name.prepend(receiver->objectName() + '.');
    }
    if (record.depth++ == 0) {
        record.outermost.append(name);
    }
    record.all.append(name);
}

void slotEnds(QObject* receiver, int) {
    if (isOurs(receiver)) {
        --record.depth;
    }
}

QSignalSpyCallbackSet callbacks{nullptr, slotBegins, nullptr, slotEnds};

} // namespace

SlotSpy::SlotSpy(QObject* dialog) {
    record = Record();
    record.dialog = dialog;
    qt_register_signal_spy_callbacks(&callbacks);
}

SlotSpy::~SlotSpy() {
    qt_register_signal_spy_callbacks(nullptr);
    record.dialog = nullptr;
}

QStringList SlotSpy::outermost() const {
    return record.outermost;
}

QStringList SlotSpy::all() const {
    return record.all;
}

} // namespace DialogTest
