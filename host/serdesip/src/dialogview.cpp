#include "serdesip/dialogview.h"

#include "fieldvalue.h"
#include "setfield.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QScrollArea>
#include <QTabBar>

namespace IPSERDESIP {

namespace {

/// The context of this file's texts.
struct ViewTexts {
    Q_DECLARE_TR_FUNCTIONS(ViewTexts)
};

constexpr const char* framePrefix = "frame/";
constexpr const char* tabPrefix = "tab";

/// The first of these that would show, else the first.
QWidget* firstVisible(const QList<QWidget*>& widgets, const QWidget* ancestor) {
    for (QWidget* widget : widgets) {
        if (widget->isVisibleTo(ancestor)) {
            return widget;
        }
    }
    return widgets.isEmpty() ? nullptr : widgets.first();
}

QAbstractButton* standardButton(const QWidget* dialog, QDialogButtonBox::StandardButton which) {
    const auto boxes = dialog->findChildren<QDialogButtonBox*>();
    for (const QDialogButtonBox* box : boxes) {
        if (QAbstractButton* button = box->button(which)) {
            return button;
        }
    }
    return nullptr;
}

} // namespace

DialogView::DialogView(protocolGenDlg* dialog)
    : m_dialog(dialog) {
    m_tabs = dialog->findChild<QTabWidget*>(QStringLiteral("tabs"));
    if (m_tabs == nullptr) {
        m_tabs = dialog->findChild<QTabWidget*>();
    }
}

protocolGenDlg* DialogView::dialog() const {
    return m_dialog;
}

DialogView::Place DialogView::find(const QString& name) const {
    Place place;
    const int slash = name.indexOf(QLatin1Char('/'));
    const QString where = name.left(slash);
    const QString object = slash < 0 ? QString() : name.mid(slash + 1);
    if (object.isEmpty()) {
        place.why = ViewTexts::tr("\"%1\" is no object: tabN/NAME or frame/NAME is").arg(name);
        return place;
    }
    if (name.startsWith(QLatin1String(framePrefix))) {
        QList<QWidget*> around;
        const auto all = m_dialog->findChildren<QWidget*>(object);
        for (QWidget* widget : all) {
            if (m_tabs == nullptr || !m_tabs->isAncestorOf(widget)) {
                around.append(widget);
            }
        }
        place.widget = firstVisible(around, m_dialog);
        if (place.widget == nullptr) {
            place.why = ViewTexts::tr("the frame has no field \"%1\"").arg(object);
        }
        return place;
    }
    bool isNumber = false;
    const int count = m_tabs == nullptr ? 0 : m_tabs->count();
    const int number = where.mid(int(qstrlen(tabPrefix))).toInt(&isNumber);
    if (!where.startsWith(QLatin1String(tabPrefix)) || !isNumber) {
        place.why = ViewTexts::tr("\"%1\" is no object: tabN/NAME or frame/NAME is").arg(name);
    } else if (number < 1 || number > count) {
        place.why = ViewTexts::tr("there is no tab %1, the dialog has %2").arg(number).arg(count);
    } else {
        place.page = m_tabs->widget(number - 1);
        place.widget = firstVisible(place.page->findChildren<QWidget*>(object), place.page);
        if (place.widget == nullptr) {
            place.why =
                ViewTexts::tr("tab %1 has no object \"%2\"").arg(QString::number(number), object);
        }
    }
    return place;
}

QString DialogView::nameOf(const QWidget* widget) const {
    if (widget->objectName().isEmpty() || m_dialog == nullptr) {
        return {};
    }
    for (int i = 0; m_tabs != nullptr && i < m_tabs->count(); ++i) {
        if (m_tabs->widget(i)->isAncestorOf(widget)) {
            return QStringLiteral("tab%1/").arg(i + 1) + widget->objectName();
        }
    }
    return m_dialog->isAncestorOf(widget) ? QLatin1String(framePrefix) + widget->objectName()
                                          : QString();
}

QString DialogView::whyOutOfReach(const Place& place) const {
    const QWidget* within = place.page != nullptr ? place.page : m_dialog.data();
    if (!place.widget->isVisibleTo(within)) {
        return ViewTexts::tr("it is hidden");
    }
    if (place.page != nullptr && !m_tabs->isTabEnabled(m_tabs->indexOf(place.page))) {
        return ViewTexts::tr("its tab is disabled");
    }
    return place.widget->isEnabled() ? QString() : ViewTexts::tr("it is disabled");
}

void DialogView::bringIntoSight(const Place& place) const {
    if (place.page == nullptr) {
        return;
    }
    m_tabs->setCurrentWidget(place.page);
    for (QWidget* parent = place.widget->parentWidget(); parent != nullptr;
         parent = parent->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(parent)) {
            area->ensureWidgetVisible(place.widget);
        }
    }
}

QAbstractButton* DialogView::okButton() const {
    return standardButton(m_dialog, QDialogButtonBox::Ok);
}

QAbstractButton* DialogView::cancelButton() const {
    return standardButton(m_dialog, QDialogButtonBox::Cancel);
}

QString DialogView::setField(const QString& name, const QVariant& to) const {
    const Place place = find(name);
    if (place.widget == nullptr) {
        return place.why;
    }
    const QString why = whyOutOfReach(place);
    if (!why.isEmpty()) {
        return why;
    }
    bringIntoSight(place);
    QTabWidget* pages = tabs();
    return IPSERDESIP::setField(place.widget, to, pages == nullptr ? nullptr : pages->tabBar());
}

QString DialogView::shownIn(const QString& name) const {
    const QWidget* field = find(name).widget;
    return field == nullptr ? QString() : fieldvalue::read(*field);
}

bool DialogView::shows(const QString& name, const QVariant& value) const {
    const QWidget* field = find(name).widget;
    return field != nullptr && fieldvalue::shows(*field, value);
}

} // namespace IPSERDESIP
