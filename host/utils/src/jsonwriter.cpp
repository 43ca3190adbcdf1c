#include "utils/jsontext.h"

#include <QStringList>
#include <QVariantMap>

#include <charconv>
#include <cmath>

namespace Utils {

namespace {

void appendText(QByteArray& out, const QString& text) {
    out += '"';
    const QByteArray utf8 = text.toUtf8();
    for (const char c : utf8) {
        switch (c) {
        case '"':
            out += "\\\"";
            break;
        case '\\':
            out += "\\\\";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\t':
            out += "\\t";
            break;
        case '\b':
            out += "\\b";
            break;
        case '\f':
            out += "\\f";
            break;
        default:
            if (static_cast<unsigned char>(c) < 0x20U) {
                out += "\\u00" + QByteArray(1, c).toHex();
            } else {
                out += c;
            }
        }
    }
    out += '"';
}

void appendReal(QByteArray& out, double value) {
    if (!std::isfinite(value)) {
        out += "null";
        return;
    }
    char buffer[32];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
    const QByteArray digits(buffer, static_cast<int>(end - buffer));
    out += digits;
    if (!digits.contains('.') && !digits.contains('e')) {
        out += ".0";
    }
}

class Writer {
public:
    explicit Writer(JsonForm form)
        : m_indented(form == JsonForm::Indented) {}

    void append(const QVariant& value) {
        switch (static_cast<int>(value.userType())) {
        case QMetaType::UnknownType:
        case QMetaType::Nullptr:
            m_out += "null";
            break;
        case QMetaType::Bool:
            m_out += value.toBool() ? "true" : "false";
            break;
        case QMetaType::Short:
        case QMetaType::Int:
        case QMetaType::Long:
        case QMetaType::LongLong:
            m_out += QByteArray::number(value.toLongLong());
            break;
        case QMetaType::UShort:
        case QMetaType::UInt:
        case QMetaType::ULong:
        case QMetaType::ULongLong:
            m_out += QByteArray::number(value.toULongLong());
            break;
        case QMetaType::Float:
        case QMetaType::Double:
            appendReal(m_out, value.toDouble());
            break;
        case QMetaType::QStringList:
            appendTexts(value.toStringList());
            break;
        case QMetaType::QVariantList:
            appendList(value.toList());
            break;
        case QMetaType::QVariantMap:
            appendMap(value.toMap());
            break;
        default:
            appendText(m_out, value.toString());
        }
    }

    QByteArray take() {
        if (m_indented) {
            m_out += '\n';
        }
        return m_out;
    }

private:
    /// Lists stay on one line when they hold no list or object: a row reads better so.
    void appendTexts(const QStringList& texts) {
        m_out += '[';
        for (int i = 0; i < texts.size(); ++i) {
            if (i > 0) {
                m_out += m_indented ? ", " : ",";
            }
            appendText(m_out, texts[i]);
        }
        m_out += ']';
    }

    void appendList(const QVariantList& list) {
        bool flat = true;
        for (const QVariant& item : list) {
            const int type = item.userType();
            flat = flat && type != QMetaType::QVariantList && type != QMetaType::QVariantMap &&
                   type != QMetaType::QStringList;
        }
        m_out += '[';
        ++m_level;
        for (int i = 0; i < list.size(); ++i) {
            if (i > 0) {
                m_out += flat && m_indented ? ", " : ",";
            }
            if (!flat) {
                newLine();
            }
            append(list[i]);
        }
        --m_level;
        if (!flat) {
            newLine();
        }
        m_out += ']';
    }

    void appendMap(const QVariantMap& map) {
        m_out += '{';
        ++m_level;
        bool first = true;
        for (auto it = map.begin(); it != map.end(); ++it) {
            if (!first) {
                m_out += ',';
            }
            first = false;
            newLine();
            appendText(m_out, it.key());
            m_out += m_indented ? ": " : ":";
            append(it.value());
        }
        --m_level;
        if (!map.isEmpty()) {
            newLine();
        }
        m_out += '}';
    }

    void newLine() {
        if (m_indented) {
            m_out += '\n' + QByteArray(2 * m_level, ' ');
        }
    }

    QByteArray m_out;
    int m_level = 0;
    bool m_indented;
};

} // namespace

QByteArray writeJson(const QVariant& value, JsonForm form) {
    Writer writer(form);
    writer.append(value);
    return writer.take();
}

} // namespace Utils
