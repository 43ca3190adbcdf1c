#include "core/viewmanager.h"

#include <QPointer>
#include <QWidget>

#include <cstdio>
#include <utility>

namespace Core {

namespace {

QPointer<QWidget>& parentHolder()
{
    static QPointer<QWidget> parent;
    return parent;
}

ViewManager::ErrorSink& sinkHolder()
{
    static ViewManager::ErrorSink sink;
    return sink;
}

} // namespace

QWidget* ViewManager::dialogParent()
{
    return parentHolder();
}

void ViewManager::setDialogParent(QWidget* parent)
{
    parentHolder() = parent;
}

ViewManager::ErrorSink ViewManager::setErrorSink(ErrorSink sink)
{
    return std::exchange(sinkHolder(), std::move(sink));
}

void ViewManager::reportError(const QString& what, const QString& why)
{
    if (sinkHolder()) {
        sinkHolder()(what, why);
    } else {
        std::fprintf(stderr, "%s: %s\n", qPrintable(what), qPrintable(why));
    }
}

} // namespace Core
