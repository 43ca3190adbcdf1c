// A Qt generic plug-in that the end-to-end tests load into the program under test: it tells where
// things are on the screen and what they show, so that the tests can move a real mouse there and
// wait for conditions. It changes nothing.
//
// WINDOW_PROBE holds two file descriptors, "READ,WRITE": a JSON object a line each way.

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QGenericPlugin>
#include <QHash>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSocketNotifier>
#include <QTabWidget>
#include <QVector>
#include <QWidget>

#include <algorithm>
#include <cstddef>
#include <unistd.h>

namespace {

QJsonObject placeOf(const QWidget* widget, const QRect& rect) {
    const QPoint at = widget->mapToGlobal(rect.topLeft());
    return {{QStringLiteral("x"), at.x()},
            {QStringLiteral("y"), at.y()},
            {QStringLiteral("width"), rect.width()},
            {QStringLiteral("height"), rect.height()}};
}

QString accessibleName(QWidget* widget) {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(widget);
    return interface != nullptr ? interface->text(QAccessible::Name) : QString();
}

QString textOf(const QWidget* widget) {
    if (const auto* edit = qobject_cast<const QPlainTextEdit*>(widget)) {
        return edit->toPlainText();
    }
    for (const char* property : {"text", "currentText", "labelText", "plainText"}) {
        const QVariant value = widget->property(property);
        if (value.isValid()) {
            return value.toString();
        }
    }
    return {};
}

/// The rows of a view, those of branches below them.
void addRows(const QAbstractItemModel* model, const QModelIndex& parent, QJsonArray* rows) {
    for (int row = 0; row < model->rowCount(parent); ++row) {
        QJsonArray texts;
        for (int column = 0; column < model->columnCount(parent); ++column) {
            texts.append(model->index(row, column, parent).data().toString());
        }
        rows->append(texts);
        addRows(model, model->index(row, 0, parent), rows);
    }
}

QModelIndex indexOf(const QAbstractItemModel* model, const QModelIndex& parent,
                    const QString& text) {
    for (int row = 0; row < model->rowCount(parent); ++row) {
        for (int column = 0; column < model->columnCount(parent); ++column) {
            const QModelIndex index = model->index(row, column, parent);
            if (index.data().toString() == text) {
                return index;
            }
        }
        const QModelIndex below = indexOf(model, model->index(row, 0, parent), text);
        if (below.isValid()) {
            return below;
        }
    }
    return {};
}

QJsonObject describe(QWidget* widget) {
    QJsonObject about = placeOf(widget, widget->rect());
    about[QStringLiteral("class")] = QLatin1String(widget->metaObject()->className());
    about[QStringLiteral("name")] = widget->objectName();
    about[QStringLiteral("accessible")] = accessibleName(widget);
    about[QStringLiteral("text")] = textOf(widget);
    about[QStringLiteral("enabled")] = widget->isEnabled();
    about[QStringLiteral("focus")] = widget->hasFocus();
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
        about[QStringLiteral("checked")] = button->isChecked();
    }
    if (const auto* view = qobject_cast<const QAbstractItemView*>(widget)) {
        QJsonArray rows;
        addRows(view->model(), {}, &rows);
        about[QStringLiteral("rows")] = rows;
    }
    if (const auto* tabs = qobject_cast<const QTabWidget*>(widget)) {
        about[QStringLiteral("current")] = tabs->currentIndex();
    }
    return about;
}

QList<QWidget*> visible(const QString& name) {
    QList<QWidget*> found;
    const QWidgetList all = QApplication::allWidgets();
    for (QWidget* widget : all) {
        if (widget->isVisible() && widget->objectName() == name) {
            found.append(widget);
        }
    }
    return found;
}

QJsonArray windows() {
    QJsonArray list;
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget* widget : all) {
        if (widget->isVisible() && widget->windowType() != Qt::ToolTip) {
            QJsonObject about = describe(widget);
            about[QStringLiteral("title")] = widget->windowTitle();
            about[QStringLiteral("id")] = double(widget->winId());
            about[QStringLiteral("active")] = widget->isActiveWindow();
            about[QStringLiteral("modal")] = widget == QApplication::activeModalWidget();
            list.append(about);
        }
    }
    return list;
}

/// What the keyboard can reach and a screen reader could not name.
QJsonArray nameless() {
    QJsonArray list;
    const QWidgetList all = QApplication::allWidgets();
    for (QWidget* widget : all) {
        if (widget->isVisible() && widget->isEnabled() &&
            (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->focusProxy() == nullptr &&
            accessibleName(widget).isEmpty()) {
            list.append(QStringLiteral("%1 \"%2\" of \"%3\"")
                            .arg(QLatin1String(widget->metaObject()->className()),
                                 widget->objectName(), widget->window()->windowTitle()));
        }
    }
    return list;
}

/// The picture with 256 colours: little is lost in a window's picture, and the file is a fraction.
QImage withPalette(const QImage& picture) {
    constexpr int most = 256;
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    QVector<QRgb> colors = counts.keys().toVector();
    std::sort(colors.begin(), colors.end(), [&](QRgb a, QRgb b) {
        return counts.value(a) != counts.value(b) ? counts.value(a) > counts.value(b) : a < b;
    });
    const auto away = [](QRgb a, QRgb b) {
        const int red = qRed(a) - qRed(b);
        const int green = qGreen(a) - qGreen(b);
        const int blue = qBlue(a) - qBlue(b);
        return red * red + green * green + blue * blue;
    };
    // Half by frequency; then always the one that those chosen stand farthest from, so that a
    // colour of few pixels is there too.
    QVector<QRgb> table = colors.mid(0, most / 2);
    const auto nearest = [&](QRgb color) {
        return std::min_element(table.begin(), table.end(),
                                [&](QRgb a, QRgb b) { return away(color, a) < away(color, b); });
    };
    QVector<int> distances;
    for (const QRgb color : qAsConst(colors)) {
        distances.append(away(color, *nearest(color)));
    }
    while (table.size() < std::min(most, colors.size())) {
        const auto farthest = std::max_element(distances.begin(), distances.end());
        const QRgb chosen = colors.at(int(farthest - distances.begin()));
        table.append(chosen);
        for (int i = 0; i < colors.size(); ++i) {
            distances[i] = std::min(distances.at(i), away(colors.at(i), chosen));
        }
    }
    QHash<QRgb, int> places;
    for (const QRgb color : qAsConst(colors)) {
        places.insert(color, int(nearest(color) - table.begin()));
    }
    QImage result(picture.size(), QImage::Format_Indexed8);
    result.setColorTable(table);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            result.setPixel(x, y, uint(places.value(picture.pixel(x, y))));
        }
    }
    return result;
}

bool savePicture(QWidget* widget, const QString& path) {
    const QImage picture = widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
    constexpr int smallest = 0; // as PNG counts quality: all the compression there is
    return withPalette(picture).save(path, "PNG", smallest);
}

QJsonValue answer(const QJsonObject& request) {
    const QString what = request[QStringLiteral("what")].toString();
    const QString name = request[QStringLiteral("name")].toString();
    if (what == QLatin1String("windows")) {
        return windows();
    }
    if (what == QLatin1String("nameless")) {
        return nameless();
    }
    if (what == QLatin1String("clipboard")) {
        return QApplication::clipboard()->text();
    }
    if (what == QLatin1String("focus")) {
        QWidget* widget = QApplication::focusWidget();
        return widget != nullptr ? QJsonValue(describe(widget)) : QJsonValue();
    }
    const QList<QWidget*> found = visible(name);
    if (found.isEmpty()) {
        return {};
    }
    if (what == QLatin1String("find")) {
        return describe(found.first());
    }
    const QString item = request[QStringLiteral("item")].toString();
    if (what == QLatin1String("picture")) { // into a file of this path
        return savePicture(found.first(), item);
    }
    if (what == QLatin1String("item")) { // of a view, by its text
        const auto* view = qobject_cast<const QAbstractItemView*>(found.first());
        const QModelIndex index =
            view != nullptr ? indexOf(view->model(), {}, item) : QModelIndex();
        const QRect place = index.isValid() ? view->visualRect(index) : QRect();
        // Only what can be seen can be clicked.
        return view != nullptr && view->viewport()->rect().contains(place.center())
                   ? QJsonValue(placeOf(view->viewport(), place))
                   : QJsonValue();
    }
    if (what == QLatin1String("resource")) { // of the map
        QRectF place;
        QMetaObject::invokeMethod(found.first(), "placeOf", Q_RETURN_ARG(QRectF, place),
                                  Q_ARG(QString, item));
        return place.isEmpty() ? QJsonValue() : placeOf(found.first(), place.toRect());
    }
    return {};
}

class Probe : public QObject {
public:
    Probe(int in, int out)
        : m_out(out)
        , m_in(in)
        , m_notifier(in, QSocketNotifier::Read) {
        connect(&m_notifier, &QSocketNotifier::activated, this, &Probe::read);
    }

private:
    void read() {
        char bytes[4096];
        const ssize_t size = ::read(m_in, bytes, sizeof bytes);
        if (size <= 0) {
            m_notifier.setEnabled(false);
            return;
        }
        m_text.append(bytes, int(size));
        for (int end = m_text.indexOf('\n'); end >= 0; end = m_text.indexOf('\n')) {
            const QJsonObject request = QJsonDocument::fromJson(m_text.left(end)).object();
            m_text.remove(0, end + 1);
            const QJsonObject reply{{QStringLiteral("is"), answer(request)}};
            QByteArray line = QJsonDocument(reply).toJson(QJsonDocument::Compact) + '\n';
            while (!line.isEmpty()) {
                const ssize_t written = ::write(m_out, line.constData(), std::size_t(line.size()));
                if (written <= 0) {
                    return;
                }
                line.remove(0, int(written));
            }
        }
    }

    int m_out;
    int m_in;
    QSocketNotifier m_notifier;
    QByteArray m_text;
};

} // namespace

class ProbePlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "probe.json")

public:
    QObject* create(const QString&, const QString&) override {
        const QList<QByteArray> ends = qgetenv("WINDOW_PROBE").split(',');
        return ends.size() == 2 ? new Probe(ends.at(0).toInt(), ends.at(1).toInt()) : nullptr;
    }
};

#include "probe.moc"
