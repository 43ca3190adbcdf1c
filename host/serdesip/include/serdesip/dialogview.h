#pragma once

#include "serdesip/export.h"
#include "serdesip/protocolgendlg.h"

#include <QPointer>
#include <QString>
#include <QTabWidget>
#include <QVariant>

class QAbstractButton;
class QWidget;

namespace IPSERDESIP {

/// An IP's dialog as a user sees it: numbered pages with named objects, the host's own fields
/// around them, OK and Cancel. Knows widget classes, no dialog in particular.
class HOST_SERDESIP_EXPORT DialogView {
public:
    DialogView() = default;
    explicit DialogView(protocolGenDlg* dialog);

    /// Null once the dialog is gone.
    protocolGenDlg* dialog() const;
    /// The tab strip that the pages stand in; null when the dialog has none.
    QTabWidget* tabs() const { return m_tabs; }

    /// An object that was looked for.
    struct Place {
        QWidget* widget = nullptr;
        QWidget* page = nullptr; ///< null for a field of the frame
        QString why;             ///< no widget: what is wrong with the name
    };
    /// By "tabN/objectName" or "frame/objectName". Of several objects of one name on a page, the
    /// first that would show is meant.
    Place find(const QString& name) const;
    /// The name that find() takes; empty for a widget without one.
    QString nameOf(const QWidget* widget) const;

    /// Why a user could not use the object now; empty: could.
    QString whyOutOfReach(const Place& place) const;
    /// Puts the object's page in front and scrolls the object into sight.
    void bringIntoSight(const Place& place) const;

    /// The button that accepts, or that cancels; null when there is none.
    QAbstractButton* okButton() const;
    QAbstractButton* cancelButton() const;

    /// Gives a field a value as a user does: brings it into sight, types or clicks, and leaves it.
    /// @return why the field refused; empty: done. A field that refuses shows what it showed.
    QString setField(const QString& name, const QVariant& to) const;
    /// What a field shows, as a text; empty for an object that is none.
    QString shownIn(const QString& name) const;
    /// Whether the field shows the value, maybe in its own spelling (letter case, digits).
    bool shows(const QString& name, const QVariant& value) const;

private:
    QPointer<protocolGenDlg> m_dialog;
    QPointer<QTabWidget> m_tabs;
};

} // namespace IPSERDESIP
