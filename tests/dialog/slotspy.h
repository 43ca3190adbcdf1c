#pragma once

#include <QObject>
#include <QStringList>

namespace DialogTest {

/// Names the slots that signals run while it lives: of the dialog by name, of another object below
/// it as "object.slot". One at a time.
class SlotSpy {
public:
    explicit SlotSpy(QObject* dialog);
    ~SlotSpy();
    SlotSpy(const SlotSpy&) = delete;
    SlotSpy& operator=(const SlotSpy&) = delete;

    /// Those that were not run inside another of them, in order.
    QStringList outermost() const;
    /// All, the inner ones behind the one that caused them.
    QStringList all() const;
};

} // namespace DialogTest
