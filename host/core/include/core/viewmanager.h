#pragma once

#include "core/export.h"

#include <QString>

#include <functional>

class QWidget;

namespace Core {

/// The environment's windows. GUI thread only.
class HOST_CORE_EXPORT ViewManager {
public:
    /// The window that dialogs shall have as parent; null when there is none.
    static QWidget* dialogParent();
    static void setDialogParent(QWidget* parent);

    /// Takes a failure that the user must hear of: what (a path, an instance), and why.
    using ErrorSink = std::function<void(const QString& what, const QString& why)>;
    /// Where reportError() leads; without one it writes a line to standard error. Returns the
    /// sink that was set before.
    static ErrorSink setErrorSink(ErrorSink sink);
    static void reportError(const QString& what, const QString& why);
};

} // namespace Core
